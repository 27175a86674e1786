#pragma once

#include <string>
#include <string_view>

#include "DataObjectXML.h"

namespace zarvik {

/// The tag of a field, prepared so that each piece of it is one copy, indentation included. Depths are numbers of tabs,
/// at most `DataObjectXML::deepest`.
class XMLTag {
 public:
  static constexpr std::size_t step = 16;  ///< bytes that may be read behind each piece, for copies in such steps

  XMLTag() : XMLTag(zkstring()) {}
  explicit XMLTag(const zkstring& name);

  std::string_view begin(unsigned int depth) const { return of(opening, depth, step + 1); }
  std::string_view end() const { return of(closing, 0, step); }
  // As lines of their own.
  std::string_view beginLine(unsigned int depth) const { return of(opening, depth, step); }
  std::string_view endLine(unsigned int depth) const { return of(closing, depth, step); }

 private:
  /// The end of `text` from `depth` tabs on, but for its last bytes.
  static std::string_view of(const std::string& text, unsigned int depth, std::size_t without) {
    const std::size_t skipped = DataObjectXML::deepest - depth;
    return {text.data() + skipped, text.size() - skipped - without};
  }

  std::string opening;  ///< all tabs, "<Name>\n" and a step of anything
  std::string closing;  ///< all tabs, "</Name>\n" and a step of anything
};

}  // namespace zarvik
