// Hexadecimal and Base64: what a writer writes the reader reads back, and any text is read within its memory.
#include <cstdint>
#include <cstdlib>

#include "Binary.h"

using zarvik::Binary;
using zarvik::zkstring;

namespace {

void require(bool holds) {
  if (!holds) std::abort();
}
}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  // Blocks of exactly the input's size, so that an overrun is seen.
  const auto length = static_cast<unsigned int>(size);
  const Binary bytes(reinterpret_cast<const char*>(data), length);
  require(Binary::fromHexString(bytes.toHexString()) == bytes);
  require(Binary::fromBase64String(bytes.toBase64String()) == bytes);

  const zkstring text = bytes.toString();
  require(Binary::fromHexString(text).length() == length / 2);
  const Binary decoded = Binary::fromBase64String(text);
  require(decoded.length() <= length / 4 * 3 + 2);
  require(Binary::fromBase64String(decoded.toBase64String()) == decoded);
  return 0;
}
