#include "GuardedCast.h"

#include "Support.h"

namespace zarvik {
namespace {

TEST(GuardedCast, givesTheSameObjectOrNamesBothClasses) {
  FIXParsingException error("x");
  Object* const object = &error;
  EXPECT_EQ(guardedCast<TransformException>(object), &error);
  EXPECT_EQ(errorOf<ClassCastException>([&] { guardedCast<NamingException>(object); }),
            "Cannot cast zarvik::FIXParsingException* to zarvik::NamingException");
  EXPECT_EQ(errorOf<ClassCastException>([] { guardedCast<NamingException>(static_cast<const Object*>(nullptr)); }),
            "Cannot cast NULL to zarvik::NamingException");
}

}  // namespace
}  // namespace zarvik
