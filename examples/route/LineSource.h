#pragma once

#include <string>
#include <string_view>

#include "InputSource.h"

namespace route {

/// One line, without its line end, as an input. In a line without any field end, `|` stands for it.
class LineSource : public zarvik::InputSource {
 public:
  explicit LineSource(std::string_view line);
  const char* getAsBytes(int& length) override;

 private:
  std::string text;
};

std::string_view bytesOf(zarvik::InputSource& source);

}  // namespace route
