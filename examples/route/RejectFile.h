#pragma once

#include <cstdio>
#include <string>
#include <string_view>

namespace route {

/// Keeps the refused messages. Each is one append to the file, so that several hosts may share it.
/// Every failure to open or write is a std::runtime_error.
class RejectFile {
 public:
  explicit RejectFile(const std::string& name);
  RejectFile(const RejectFile&) = delete;
  RejectFile& operator=(const RejectFile&) = delete;
  ~RejectFile();

  /// `origin` such as "a.txt:12"; `line` as it was read. The lines of `reason` are marked with '#'.
  void add(const std::string& origin, std::string_view reason, std::string_view line);

 private:
  void write(const std::string& bytes);

  std::string name;
  std::FILE* file;
};

}  // namespace route
