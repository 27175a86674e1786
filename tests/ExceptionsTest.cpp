// The exceptions, and the handlers that get them.
#include "Exceptions.h"

#include "Support.h"

namespace zarvik {
namespace {

/// What a handler gets of `error` when it is thrown.
template <class E>
SmartPtr<E> caught(const E& error) {
  try {
    throwFrom("cpp/Here", error);
  } catch (const E& e) {
    return static_cast<E*>(dynamic_cast<E*>(e.clone()));
  }
}

TEST(Exception, keepsTraceAndDetailThroughThrowAndClone) {
  Exception error("outer");
  error.setDetail(NamingException("inner"));
  const SmartPtr<Exception> seen = caught(error);
  EXPECT_EQ(seen->toString(), "zarvik::Exception:outer");
  EXPECT_EQ(seen->getTrace().getFileName(), "cpp/Here");
  EXPECT_TRUE(seen->getTrace().isValid());
  EXPECT_NE(seen->getDetail(), error.getDetail());
  EXPECT_EQ(classOf(*seen->getDetail()), "zarvik::NamingException");
  EXPECT_EQ(seen->getDetail()->getMessage(), "inner");
}

TEST(TransformException, isBornWithItsDefaults) {
  TransformException error("x");
  EXPECT_EQ(error.getMessage(), "x");
  EXPECT_EQ(error.getErrorCode(), "");
  EXPECT_EQ(error.getSeverity(), "fatal");
  EXPECT_TRUE(error.getCascadable());
  EXPECT_EQ(error.getRefCount(), 0);
  const std::string isNull = "Attempt to access field 'Type' with null value";
  EXPECT_EQ(errorOf<FieldNullException>([&] { error.getType(); }), isNull);
  EXPECT_EQ(errorOf<FieldNullException>([&] { FieldNullException("y").getFFieldName(); }),
            "Attempt to access field 'FieldName' with null value");
  EXPECT_EQ(FieldParsingException("y", "Symbol").getFFieldName(), "Symbol");
}

TEST(TransformException, losesTraceAndDetailWhenItIsCopied) {
  TransformException error("x", new Exception("inner"));
  error.getTrace().setFileName("cpp/Here");
  EXPECT_EQ(error.getTraceString(), "");  // it is a text only with a line
  error.getTrace().setLine(5);
  EXPECT_EQ(error.getTraceString(), "cpp/Here:5:");
  error.setContextProperty("a", "b");
  error.addRef();
  const TransformException copy(error);
  error.decRef();
  EXPECT_EQ(copy.getTraceString(), "");
  EXPECT_EQ(copy.getDetail(), nullptr);
  EXPECT_EQ(copy.getRefCount(), 0);
  EXPECT_EQ(copy.getContextProperty("a"), "b");
  const SmartPtr<FIXParsingException> seen = caught(FIXParsingException(error));
  EXPECT_EQ(seen->getTraceString(), "");
  EXPECT_EQ(seen->getContextProperties(), error.getContextProperties());
  EXPECT_TRUE(seen->unique());
}

TEST(TransformException, isARecordOfSevenFields) {
  TransformException error("x");
  ASSERT_EQ(error.getFieldCount(), 7);
  DataObject& record = error;
  record.setField(zkstringliteral("Message"), static_cast<const Object&>(StringObject("changed")));
  EXPECT_EQ(error.getMessage(), "changed");
  BoolObject flag(false);
  record.setField(4, flag);
  EXPECT_FALSE(error.getCascadable());
  StringObject text;
  EXPECT_TRUE(record.getField(1, text));
  EXPECT_EQ(text.getValue(), "changed");
  EXPECT_EQ(SmartPtr<Object>(record.getField(4))->toString(), "false");
  record.setNull(1);
  EXPECT_EQ(TransformException(error).isNull(1), true);  // even so it can be copied
  error.setMessage("set");
  EXPECT_EQ(error.getMessage(), "set");
}

TEST(TransformException, tellsItsRecordAsXML) {
  TransformException error("a < b");
  error.setFFieldName("Symbol");
  error.setInternalCode("4 < 5");
  error.fillPhase("Input");
  const std::string fields =
      "\t<Message>a &lt; b</Message>\n\t<ErrorCode></ErrorCode>\n\t<Severity>fatal</Severity>\n"
      "\t<Cascadable>true</Cascadable>\n\t<FieldName>Symbol</FieldName>\n"
      "\t<Error-Phase>Input</Error-Phase>\n\t<Internal-Code>4 < 5</Internal-Code>\n";
  EXPECT_EQ(error.toString(), ("<TransformException>\n" + fields + "</TransformException>\n").c_str());
  EXPECT_EQ(error.toXMLString(true), error.toString());
  EXPECT_EQ(NamingException("x").toXMLString(1).substr(0, 30), "\t<TransformException>\n\t\t<Messa");
}

TEST(TransformException, takesOverAnother) {
  TransformException other("other");
  other.setType("T");
  other.setContextProperty("k", "v");
  TransformException error("x");
  error.getTrace().setLine(3);
  error.addAll(&other);
  EXPECT_EQ(error.toString(), other.toString());
  EXPECT_TRUE(error.getTrace().isValid());  // its own still

  ExceptionDataObject data;
  EXPECT_EQ(TransformException(data).isNull(1), true);
  data.setMessage("m");
  std::vector<ExceptionDataObject*> entries;
  EXPECT_EQ(TransformException(entries).getMessage(), "No message");
  entries = {&data, &other};
  EXPECT_EQ(TransformException(entries).getMessage(), "m");
  EXPECT_TRUE(TransformException(entries).isNull(3));
}

TEST(TransformException, listsACloneOfItsOwnClass) {
  const SIACCanonicalWriterException error("x");
  std::vector<ExceptionDataObject*> list;
  error.getExceptionsAsList(list);
  ASSERT_EQ(list.size(), 1U);
  const SmartPtr<ExceptionDataObject> entry(list[0]);
  EXPECT_EQ(classOf(*entry), "zarvik::SIACCanonicalWriterException");
}

TEST(ExceptionDataObject, stampsFromTheInside) {
  FCSParseException error("x");
  EXPECT_EQ(error.getLine(), -1);
  error.setLocation(12, 40);
  error.fillPhase(ExceptionObject::getINPUT_PHASE());
  error.fillPhase(ExceptionObject::getOUTPUT_PHASE());
  EXPECT_EQ(error.getErrorPhase(), "Input");
  error.setErrorPhase(ExceptionObject::getINTERNAL_MESSAGE_PHASE());
  EXPECT_EQ(error.getPhase(), "Internal Message");
  error.fillErrorType("Parsing");
  error.fillErrorType("Mapping");
  EXPECT_EQ(error.getErrorType(), "Parsing");
  EXPECT_EQ(error.getLine(), 12);
  EXPECT_EQ(error.getColumn(), 40);
  error.setContextProperty("line", "");
  EXPECT_EQ(error.getContextProperties(),
            (Properties{{"Error-Phase", "Internal Message"}, {"Error-Type", "Parsing"}, {"column", "40"}}));
}

TEST(ExceptionDataObject, isOfItsOwnType) {
  EXPECT_EQ(ExceptionDataObject::metaInfo()->getName(), "ExceptionDataObject2");
  EXPECT_TRUE(ExceptionDataObject::instanceOf("TransformException"));
  EXPECT_FALSE(ExceptionDataObject::instanceOf("ExceptionDataObject2"));
}

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
