#include "XMLTag.h"

namespace zarvik {
namespace {

std::string line(const char* begin, const zkstring& name) {
  std::string text(DataObjectXML::deepest, '\t');
  return text.append(begin).append(name.data(), name.length()).append(">\n").append(XMLTag::step, '\0');
}
}  // namespace

XMLTag::XMLTag(const zkstring& name) : opening(line("<", name)), closing(line("</", name)) {}

}  // namespace zarvik
