#include "ExceptionHandler.h"

#include "SmartPtr.h"
#include "Support.h"

namespace zarvik {
namespace {

/// What a static initialiser finds.
ExceptionHandler* const seenAtStartUp = ExceptionHandler::DRACONIAN_EXCEPTION_HANDLER;

TEST(DraconianExceptionHandler, throwsThePlainClassWithAllThatIsKnown) {
  FieldValidationException error("bad", "Symbol");
  error.setErrorType("Validation");
  const TransformException expected(error);
  try {
    seenAtStartUp->onException(&error);
    FAIL();
  } catch (const TransformException& thrown) {
    EXPECT_EQ(classOf(thrown), "zarvik::TransformException");
    EXPECT_EQ(thrown.toString(), expected.toString());
  }
  ExceptionDataObject data;
  data.setMessage("from data");
  EXPECT_EQ(errorOf<TransformException>([&] { seenAtStartUp->onException(&data); }), "from data");
}

TEST(CascadingExceptionHandler, keepsClonesInTheOrderOfArrival) {
  CascadingExceptionHandler handler;
  EXPECT_TRUE(handler.getExceptions().empty());
  FieldParsingException error("first", "Symbol");
  handler.onException(&error);
  error.setMessage("second");
  handler.onException(&error);
  ASSERT_EQ(handler.getExceptions().size(), 2U);
  const SmartPtr<ExceptionDataObject> first(handler.getExceptions()[0]);
  const SmartPtr<ExceptionDataObject> second(handler.getExceptions()[1]);
  EXPECT_EQ(first->getMessage(), "first");
  EXPECT_EQ(second->getMessage(), "second");
  EXPECT_EQ(classOf(*first), "zarvik::FieldParsingException");
}

}  // namespace
}  // namespace zarvik
