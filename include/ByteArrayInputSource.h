#pragma once

#include "AbstractRawMessage.h"

namespace zarvik {

/// Bytes as a raw message.
class ByteArrayInputSource : public AbstractRawMessage {
 public:
  ByteArrayInputSource(const Binary& bytes) : bytes(bytes) {}  ///< shares the bytes
  /// Owns `block`, which comes from `new[]`, from here on.
  ByteArrayInputSource(char* block, int length) : ByteArrayInputSource(block, length, true) {}
  /// Copies the bytes, or with `owned` keeps the block, which comes from `new[]`, and owns it.
  ByteArrayInputSource(const char* block, int length, bool owned);
  ByteArrayInputSource(const ByteArrayInputSource& other);  ///< copies the bytes of an owned block
  ~ByteArrayInputSource() override;

  const char* getAsBytes(int& length) override;

 private:
  Binary bytes;
  bool ownsBytes = false;
};

}  // namespace zarvik
