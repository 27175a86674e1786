#include "FileInputSource.h"

#include <cstdio>
#include <limits>

#include "Exceptions.h"
#include "ThrowFrom.h"

namespace zarvik {
namespace {

constexpr char here[] = "cpp/FileInputSource";

using File = std::unique_ptr<std::FILE, int (*)(std::FILE*)>;

/// The number of bytes in `file`, which then stands at its start again; negative if that cannot be told.
long sizeOf(std::FILE* file) {
  if (std::fseek(file, 0, SEEK_END) != 0) return -1;
  const long size = std::ftell(file);
  return std::fseek(file, 0, SEEK_SET) == 0 ? size : -1;
}
}  // namespace

FileInputSource::FileInputSource(const zkstring& path) {
  const zkstring terminated(path.data(), path.length());  // a slice of a constant text has no end of its own
  const File file(std::fopen(terminated.c_str(), "rb"), &std::fclose);
  const long size = file != nullptr ? sizeOf(file.get()) : -1;
  // A directory opens too; its size is no number of bytes.
  if (size < 0 || size >= std::numeric_limits<int>::max()) {
    throwFrom(here, TransformException("File not found " + path));
  }
  bytes.reset(new char[static_cast<std::size_t>(size) + 1]);
  const std::size_t got = std::fread(bytes.get(), 1, static_cast<std::size_t>(size), file.get());
  bytes[got] = '\0';
  length = static_cast<int>(got);
}

const char* FileInputSource::getAsBytes(int& byteCount) {
  byteCount = length;
  return bytes.get();
}

}  // namespace zarvik
