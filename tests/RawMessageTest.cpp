#include "RawMessage.h"

#include <cstdio>

#include "Support.h"

namespace zarvik {
namespace {

char* blockOf(const std::string& bytes) {
  char* const block = new char[bytes.size()];
  bytes.copy(block, bytes.size());
  return block;
}

/// A file in the folder of temporary files that goes with the scope.
struct TemporaryFile {
  explicit TemporaryFile(const std::string& contents) {
    std::FILE* const file = std::fopen(path.c_str(), "wb");
    std::fwrite(contents.data(), 1, contents.size(), file);
    std::fclose(file);
  }
  ~TemporaryFile() { std::remove(path.c_str()); }
  std::string path = testing::TempDir() + "zarvikrt_source";
};

TEST(RawMessage, everySourceGivesItsBytesAgainAndAgain) {
  const std::string bytes("a\0\r\n\xff", 5);
  const TemporaryFile file(bytes);
  const zkstring text(bytes.data(), 5);
  const RawMessage sources[] = {new StringInputSource(text),
                                new ByteArrayInputSource(Binary(text)),
                                new ByteArrayInputSource(blockOf(bytes), 5),
                                new ByteArrayInputSource(bytes.data(), 5, false),
                                new ByteArrayInputSource(ByteArrayInputSource(blockOf(bytes), 5)),
                                new FileInputSource(file.path.c_str())};
  for (const RawMessage& source : sources) {
    for (int i = 0; i < 2; ++i) {
      int length = 0;
      const char* const start = source->getAsBytes(length);
      EXPECT_EQ(std::string(start, static_cast<std::size_t>(length)), bytes);
    }
    EXPECT_EQ(str(source->getAsString()), bytes);
    EXPECT_EQ(str(source->getAsString("UTF-16")), bytes);
    const Binary copy = source->getAsBinary();
    EXPECT_EQ(str(copy.toString()), bytes);
    EXPECT_EQ(copy.data()[5], '\0');
  }
}

TEST(RawMessage, sharesWhatIsCountedAndCopiesWhatIsNot) {
  const zkstring text("text of some length");
  int length = 0;
  EXPECT_EQ(StringInputSource(text).getAsBytes(length), text.data());
  EXPECT_EQ(MessageFunctions::toRawMessage(Binary(text))->getAsBytes(length), text.data());
  const char raw[] = "raw";
  EXPECT_NE(ByteArrayInputSource(raw, 3, false).getAsBytes(length), raw);
}

TEST(FileInputSource, refusesWhatIsNoFile) {
  for (const std::string& path : {testing::TempDir() + "no_such_file", testing::TempDir(), std::string()}) {
    EXPECT_EQ(errorOf<TransformException>([&] { FileInputSource source(path.c_str()); }), "File not found " + path);
  }
  const TemporaryFile empty("");
  int length = 1;
  const std::string longer = empty.path + " and more";
  const zkstring path = zkstring::static_string(longer.c_str()).substr(0, static_cast<unsigned int>(empty.path.size()));
  EXPECT_NE(FileInputSource(path).getAsBytes(length), nullptr);
  EXPECT_EQ(length, 0);
}

TEST(RawMessage, attachmentsStandInTheOrderOfNames) {
  const RawMessage message(new StringInputSource("body"));
  EXPECT_FALSE(message->hasAttachment("b"));
  message->removeAttachment("b");
  const RawMessage first(new StringInputSource("1"));
  message->addAttachment("b", first);
  message->addAttachment("a", new StringInputSource("2"));
  message->addAttachment("b", new StringInputSource("3"));
  EXPECT_TRUE(first->unique());
  EXPECT_EQ(message->getAttachmentNames().toString(), "[a, b]");
  EXPECT_EQ(MessageFunctions::getAttachments(message).toString(), "[2, 3]");
  EXPECT_EQ(MessageFunctions::getAttachments(message).indexOf(message->getAttachment("b")), 1);
  EXPECT_TRUE(message->getAttachment("x").isNull());
  EXPECT_TRUE(message->hasAttachment("x"));  // asking made it known
  message->removeAttachment("a");
  EXPECT_EQ(message->getAttachmentNames().toString(), "[b, x]");
  EXPECT_EQ(dynamic_cast<AbstractRawMessage&>(*message).getAttachments().toString(), "[3, ]");
}

TEST(RawMessage, dumpsItself) {
  const RawMessage message(new StringInputSource("body"));
  EXPECT_EQ(message->toString(), "body");
  message->setIntProperty("n", 5);
  message->setStringProperty(IRawMessage::REPLY_TO_PROPERTY, "q");
  message->addAttachment("second", new StringInputSource("B"));
  message->addAttachment("first", new StringInputSource("A"));
  EXPECT_EQ(message->toString(), "n:5\nreplyTo:q\nbody\n-----=first\nA-----=second\nB");
  class Unprintable : public ObjectRef {
    zkstring toString() const override { throw Exception("no text"); }
  };
  message->setProperty("u", new Unprintable);
  EXPECT_EQ(message->toString(), "ToString error");
}

TEST(RawMessage, copiesShareWhatIsThere) {
  StringInputSource message("body");
  message.setName("name");
  message.setEncoding("label");
  EXPECT_FALSE(message.hasProperty("m"));  // asking made the store that the copy shares
  message.addAttachment("a", new StringInputSource("A"));
  StringInputSource copy(message);
  copy.setIntProperty("m", 2);
  copy.removeAttachment("a");
  EXPECT_EQ(message.getIntProperty("m", 0), 2);
  EXPECT_FALSE(message.hasAttachment("a"));
  EXPECT_EQ(copy.getName() + copy.getEncoding(), "namelabel");
}

TEST(RawMessage, costsNothingBeyondItselfUntilPropertiesAreUsed) {
  const zkstringliteral text("text");
  const Allocations allocations;
  {
    const RawMessage message(new StringInputSource(text));
    EXPECT_FALSE(message->hasAttachment(text));
    EXPECT_EQ(message->getAsString(), "text");
  }
  EXPECT_EQ(allocations.count(), 1);
}

TEST(RawMessageObject, sharesItsMessage) {
  const RawMessage message(new StringInputSource("body"));
  const RawMessageObject box(message);
  const SmartPtr<Object> clone(box.clone());
  EXPECT_EQ(clone->getRawMessage().get(), message.get());
  EXPECT_EQ(message->getRefCount(), 3);
}

TEST(Parsing, makesRawMessagesOfBytesAndTexts) {
  BinaryObject bytes(Binary(zkstring("bytes")));
  StringObject text(zkstring("text"));
  IntObject number(1);
  const SmartPtr<Object> ofBytes(Parsing::toRawMessageTypeObject(&bytes));
  const SmartPtr<Object> ofText(Parsing::toRawMessageTypeObject(&text));
  EXPECT_EQ(dynamic_cast<ByteArrayInputSource&>(*ofBytes).getAsString(), "bytes");
  EXPECT_EQ(dynamic_cast<StringInputSource&>(*ofText).getAsString(), "text");
  EXPECT_EQ(Parsing::toRawMessageTypeObject(&number), &number);
  EXPECT_EQ(Parsing::toRawMessageTypeObject(nullptr), nullptr);
}

/// The lines, each in brackets, and the trailer behind a slash.
std::string linesOf(const std::string& data, bool hasTrailer) {
  LineReader reader(data.data(), static_cast<int>(data.size()), hasTrailer);
  std::string lines;
  while (reader.hasMoreLines()) lines += "[" + str(reader.getNextLine()) + "]";
  EXPECT_EQ(str(reader.getNextLine() + reader.getNextLine()), "");
  return hasTrailer ? lines + "/" + str(reader.getTrailerLine()) : lines;
}

TEST(LineReader, splitsAtLineEnds) {
  constexpr std::tuple<const char*, bool, const char*> rows[] = {{"", false, ""},
                                                                 {"\r\n", false, "[]"},
                                                                 {"a\r\nb\nc", false, "[a][b][c]"},
                                                                 {"a\rb\n", false, "[a\rb]"},
                                                                 {"a\n\n", false, "[a][]"},
                                                                 {"a\r", false, "[a\r]"},
                                                                 {"a\r\r\nb", false, "[a\r][b]"},
                                                                 {"\n\r\n", false, "[][]"},
                                                                 {"", true, "/"},
                                                                 {"a", true, "/a"},
                                                                 {"a\nb\n", true, "[a]/b"}};
  for (const auto& [data, hasTrailer, lines] : rows) EXPECT_EQ(linesOf(data, hasTrailer), lines) << data;
}

TEST(LineReader, numbersLinesAndStepsBack) {
  StringInputSource source("a\nb");
  LineReader reader(source, false);
  EXPECT_EQ(reader.getLastLineNumber(), 0);
  reader.getNextLine();
  reader.getNextLine();
  reader.pushBackLine();
  EXPECT_EQ(reader.getLastLineNumber(), 1);
  EXPECT_EQ(reader.getNextLine(), "b");
}

}  // namespace
}  // namespace zarvik
