#include "DataObjectXML.h"

#include "Support.h"

namespace zarvik {
namespace {

TEST(DataObjectXML, escapesCharacterData) {
  const struct {
    zkstring text;
    const char* escaped;
  } rows[] = {{"a<b>&c", "a&lt;b&gt;&amp;c"},
              {"'\"", "'\""},
              {"\t\r\n<", "\t\r\n&lt;"},
              {zkstring("\0\x1F \x7F", 4), "&#0;&#31; \x7F"},
              {"\x80\xE9\xFF", "&#-128;&#-23;&#-1;"},
              {"", ""}};
  for (const auto& row : rows) EXPECT_EQ(DataObjectXML::fixXMLCharData(row.text), row.escaped);
}

TEST(DataObjectXML, sharesATextThatNeedsNothing) {
  const zkstring plain("plain text\t1");
  EXPECT_EQ(DataObjectXML::fixXMLCharData(plain).data(), plain.data());
}

TEST(DataObjectXML, indentationEndsAt52) {
  for (const auto& [level, tabs] : {std::pair{0, 0U}, {3, 3U}, {52, 52U}, {53, 52U}, {-1, 52U}}) {
    zkstringbuffer out;
    DataObjectXML::appendIndent(out, level);
    EXPECT_EQ(out, zkstring(tabs, '\t'));
  }
}
}  // namespace
}  // namespace zarvik
