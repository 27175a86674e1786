#include "Binary.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <limits>
#include <new>

namespace zarvik {
namespace {

using Byte = unsigned char;

constexpr char hexDigits[] = "0123456789ABCDEF";
constexpr char alphabet[] = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";

/// What each character counts as a hexadecimal digit: only the low eight bits of a pair's sum remain.
constexpr auto hexValues = [] {
  std::array<Byte, 256> values{};
  for (int c = 0; c < 256; ++c) {
    const int upper = c >= 'a' && c <= 'z' ? c - 'a' + 'A' : c;
    values[static_cast<Byte>(c)] = static_cast<Byte>(c >= '0' && c <= '9' ? c - '0' : upper - 55);
  }
  return values;
}();

constexpr Byte padding = 127;
constexpr Byte skipped = 255;

/// The six bits that each character of Base64 stands for, `padding` for '=', or `skipped`.
constexpr auto base64Values = [] {
  std::array<Byte, 256> values{};
  values.fill(skipped);
  for (Byte i = 0; i < 64; ++i) values[static_cast<Byte>(alphabet[i])] = i;
  values['='] = padding;
  return values;
}();

Byte base64Value(char c) { return base64Values[static_cast<Byte>(c)]; }

/// Makes `out` a text of `n` characters, which are then written to the result; refuses more than a string can hold.
char* roomFor(zkstring& out, std::uint64_t n) {
  if (n > static_cast<unsigned int>(std::numeric_limits<int>::max())) throw std::bad_array_new_length();
  char* const text = out.getBuffer(static_cast<int>(n));
  out.setBufferLength(static_cast<int>(n));
  return text;
}

/// The four characters of three bytes.
char* putGroup(char* out, Byte a, Byte b, Byte c) {
  out[0] = alphabet[a >> 2];
  out[1] = alphabet[(a & 3) << 4 | b >> 4];
  out[2] = alphabet[(b & 15) << 2 | c >> 6];
  out[3] = alphabet[c & 63];
  return out + 4;
}

/// How many bytes the characters of the alphabet before the first '=' are worth.
unsigned int decodedLength(const zkstring& text) {
  unsigned int values = 0;
  for (const char* p = text.data(); p != text.data() + text.length(); ++p) {
    const Byte value = base64Value(*p);
    if (value == padding) break;
    values += value != skipped;
  }
  const unsigned int rest = values % 4;
  return values / 4 * 3 + (rest != 0 ? rest - 1 : 0);
}

/// The up to three bytes that a group of four values stands for, as far as there is room.
char* putDecoded(char* out, const char* end, const std::array<Byte, 4>& group) {
  const unsigned int bits = (group[0] & 63U) << 18 | (group[1] & 63U) << 12 | (group[2] & 63U) << 6 | (group[3] & 63U);
  const std::array<char, 3> bytes = {static_cast<char>(bits >> 16), static_cast<char>(bits >> 8),
                                     static_cast<char>(bits)};
  const std::ptrdiff_t given = group[2] == padding ? 1 : group[3] == padding ? 2 : 3;
  return std::copy_n(bytes.begin(), std::min(given, end - out), out);
}
}  // namespace

Binary::Binary(const char* bytes, unsigned int length, bool asStatic) : zkstring(bytes, length, nullptr, false) {
  if (!asStatic) init(bytes, length);
}

Binary::Binary(unsigned int n) {
  ensureCleanFree(n);
  count = n;
}

Binary& Binary::assign(const char* bytes, unsigned int length) { return *this = Binary(bytes, length); }

Binary Binary::sub(int start, int length) const {
  assert(start >= 0 && length >= 0 && static_cast<std::size_t>(start) + static_cast<std::size_t>(length) <= count);
  return Binary(pointer + start, static_cast<unsigned int>(length));
}

zkstring Binary::toHexString() const {
  zkstring text;
  char* out = roomFor(text, std::uint64_t{2} * count);
  for (const char* p = pointer; p != pointer + count; ++p) {
    *out++ = hexDigits[static_cast<Byte>(*p) >> 4];
    *out++ = hexDigits[*p & 15];
  }
  return text;
}

Binary Binary::fromHexString(const zkstring& text) {
  Binary bytes(text.length() / 2);
  char* out = bytes.array->getPtr();
  const auto digit = [&text](unsigned int i) { return hexValues[static_cast<Byte>(text[i])]; };
  for (unsigned int i = 0; i + 1 < text.length(); i += 2) *out++ = static_cast<char>(digit(i) * 16 + digit(i + 1));
  return bytes;
}

zkstring Binary::toBase64String() const {
  zkstring text;
  char* out = roomFor(text, (std::uint64_t{count} + 2) / 3 * 4);
  const Byte* p = reinterpret_cast<const Byte*>(pointer);
  unsigned int left = count;
  for (; left >= 3; left -= 3, p += 3) out = putGroup(out, p[0], p[1], p[2]);
  if (left == 0) return text;
  out = putGroup(out, p[0], left == 2 ? p[1] : 0, 0);
  std::fill(out - (3 - left), out, '=');
  return text;
}

Binary Binary::fromBase64String(const zkstring& text) {
  Binary bytes(decodedLength(text), '\0');
  char* out = bytes.array->getPtr();
  const char* const end = out + bytes.length();
  std::array<Byte, 4> group{};
  unsigned int n = 0;
  for (const char* p = text.data(); p != text.data() + text.length() && out != end; ++p) {
    const Byte value = base64Value(*p);
    if (value == skipped) continue;
    group[n++ % 4] = value;
    if (n % 4 == 0) out = putDecoded(out, end, group);
  }
  return bytes;
}

}  // namespace zarvik
