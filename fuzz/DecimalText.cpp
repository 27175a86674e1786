// The reader of number texts, one step of arithmetic and the text forms. The input is an operation, '0' and up, and two
// texts, a line each. Warnings are many: run it with -close_fd_mask=2.
#include <cstdint>
#include <cstdlib>
#include <string>
#include <vector>

#include "BigDecimal.h"
#include "BigInteger.h"
#include "Exceptions.h"

using zarvik::BigDecimal;
using zarvik::BigInteger;
using zarvik::zkstring;

namespace {

std::string nextLine(std::string& input) {
  const std::size_t end = input.find('\n');
  const std::string line = input.substr(0, end);
  input.erase(0, end == std::string::npos ? end : end + 1);
  return line;
}

BigDecimal numberOf(const std::string& text) {
  return BigDecimal(zkstring(text.data(), static_cast<unsigned int>(text.size())));
}

/// Writes all texts of the number; what is exact has to read back as the same number.
void writeAll(const BigDecimal& value) {
  constexpr std::size_t most = 20'000;
  std::vector<char> text(static_cast<std::size_t>(value.significant_digits()) + 2 * most);  // groups take a third more
  value.MAPM::toString(text.data(), -1);
  if (BigDecimal(text.data()) != value) std::abort();
  if (value.fixPtLength(-1) < static_cast<long long>(most)) {
    const zkstring fixed = value.toString();
    if (BigDecimal(fixed) != value) std::abort();
    value.toFixPtStringEx(text.data(), 7, ',', '.', 3);
    value.toIntegerString(text.data());
  }
  value.toInt();
  value.toDouble();
  value.toFloat();
  try {
    value.toLong();
  } catch (const zarvik::TransformException&) {  // out of range
  }
}

/// Neither short nor refused: millions of digits take their time and show nothing new.
bool isSlow(const BigDecimal& value) {
  const long long power = std::abs(static_cast<long long>(value.exponent()));
  return power > 20'000 && power < 2 * M_APM_MAX_DIGITS;
}

BigDecimal calculate(char operation, const BigDecimal& a, const BigDecimal& b) {
  switch (operation) {
    case '0':
      return a + b;
    case '1':
      return a - b;
    case '2':
      return a * b;
    case '3':
      return a / b;
    case '4':
      return a % b;
    case '5':
      return BigDecimal(BigInteger(a) / BigInteger(b));
    default:
      return a;
  }
}
}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  std::string input(reinterpret_cast<const char*>(data), size);
  const std::string operation = nextLine(input);
  const BigDecimal a = numberOf(nextLine(input));
  const BigDecimal b = numberOf(input);
  writeAll(a);
  if (isSlow(a) || isSlow(b)) return 0;
  const BigDecimal result = calculate(operation.empty() ? ' ' : operation[0], a, b);
  writeAll(result);
  return 0;
}
