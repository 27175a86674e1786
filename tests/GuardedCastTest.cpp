#include "GuardedCast.h"

#include <cstddef>
#include <new>

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

struct Part {
  virtual ~Part() = default;
};
struct Target {
  virtual ~Target() = default;
};
struct Plain : Part {};
struct Behind : Part, Target {};
struct Before : Target, Part {};
struct First : Part {};
struct Second : Part, Target {};
struct Twice : First, Second {};  // of two parts one is the target's own

/// One object after the other at one place, so that addresses alone tell nothing.
TEST(GuardedCast, remembersNoOtherObjectThanTheLast) {
  RememberedCast<Target, Part> cast;
  EXPECT_EQ(cast(nullptr), nullptr);
  alignas(std::max_align_t) char room[2 * sizeof(Twice)];
  const auto check = [&]<class Whole, class Way>(Whole*, Way*, std::size_t offset) {
    auto* const whole = new (room + offset) Whole;
    Part* const part = static_cast<Way*>(whole);
    for (int i = 0; i < 2; ++i) EXPECT_EQ(cast(part), dynamic_cast<Target*>(part)) << typeid(Whole).name();
    whole->~Whole();
  };
  for (int round = 0; round < 2; ++round) {
    check(static_cast<Plain*>(nullptr), static_cast<Plain*>(nullptr), 0);
    check(static_cast<Behind*>(nullptr), static_cast<Behind*>(nullptr), 0);
    check(static_cast<Before*>(nullptr), static_cast<Before*>(nullptr), 0);
    check(static_cast<Twice*>(nullptr), static_cast<Second*>(nullptr), 0);
    check(static_cast<Twice*>(nullptr), static_cast<First*>(nullptr), sizeof(First));
  }
}

}  // namespace
}  // namespace zarvik
