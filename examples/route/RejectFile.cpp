#include "RejectFile.h"

#include <cerrno>
#include <system_error>

namespace route {
namespace {

/// Whether the file ends within a line, as after a host that died while it wrote.
bool endsWithinALine(const std::string& name) {
  std::FILE* const file = std::fopen(name.c_str(), "rb");
  if (file == nullptr) return false;
  const bool within = std::fseek(file, -1, SEEK_END) == 0 && std::fgetc(file) != '\n';
  std::fclose(file);
  return within;
}

[[noreturn]] void fail(const std::string& what) { throw std::system_error(errno, std::generic_category(), what); }
}  // namespace

RejectFile::RejectFile(const std::string& name) : name(name), file(std::fopen(name.c_str(), "ab")) {
  if (file == nullptr) fail("cannot open the reject file '" + name + "'");
  std::setvbuf(file, nullptr, _IONBF, 0);  // a message is on its way to the disk before the next one is read
  if (endsWithinALine(name)) write("\n");
}

RejectFile::~RejectFile() { std::fclose(file); }

void RejectFile::add(const std::string& origin, std::string_view reason, std::string_view line) {
  while (reason.ends_with('\n')) reason.remove_suffix(1);
  std::string entry = "# " + origin + ": ";
  for (const char c : reason) {
    entry += c;
    if (c == '\n') entry += "# ";
  }
  entry.append("\n").append(line).append("\n");
  write(entry);
}

void RejectFile::write(const std::string& bytes) {
  if (std::fwrite(bytes.data(), 1, bytes.size(), file) != bytes.size()) {
    fail("cannot write the reject file '" + name + "'");
  }
}

}  // namespace route
