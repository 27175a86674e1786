#pragma once

#include <memory>

#include "AbstractRawMessage.h"

namespace zarvik {

/// A whole file, read into memory, as a raw message. The file is closed again when the constructor returns.
class FileInputSource : public AbstractRawMessage {
 public:
  /// Throws TransformException "File not found <path>" for a file that cannot be opened, is a directory or is larger
  /// than an `int` can tell.
  FileInputSource(const zkstring& path);

  const char* getAsBytes(int& byteCount) override;  ///< with a NUL behind them

 private:
  int length = 0;
  std::unique_ptr<char[]> bytes;
};

}  // namespace zarvik
