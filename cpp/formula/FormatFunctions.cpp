#include "formula/FormatFunctions.h"

#include <cstdio>
#include <cstdlib>

#include "../CNumbers.h"
#include "Exceptions.h"
#include "MessageFormatter.h"
#include "ThrowFrom.h"

namespace zarvik {
namespace {

constexpr char here[] = "cpp/formula/FormatFunctions";
constinit const zkstringliteral defaultPattern("MMM dd, yyyy");

bool scanDouble(const zkstring& text, double& value) { return std::sscanf(Terminated(text).get(), "%lf", &value) == 1; }

/// Whether `read` gets through the text without a failure.
template <class Read>
bool succeeds(Read read) {
  try {
    read();
    return true;
  } catch (const Exception&) {
    return false;
  }
}

[[noreturn]] void cannotConvert(const zkstring& text, const char* type, CallSite site = CallSite::current()) {
  throwFrom(here, TransformRuntimeException("Formula execution error. Cannot convert '" + text + "' to " + type), site);
}
}  // namespace

zkstring FormatFunctions::format(const zkstring& pattern, const ObjectList& arguments) {
  return MessageFormatter::format(pattern, arguments);
}

DateTime FormatFunctions::parseDate(const zkstring& text) { return parseDate(text, defaultPattern); }

DateTime FormatFunctions::parseDate(const zkstring& text, const zkstring& pattern) {
  return DateTime::fromString(text.substr(0, text.find('\0')), pattern);
}

bool FormatFunctions::isDate(const zkstring& text, const zkstring& pattern) {
  return succeeds([&] { parseDate(text, pattern); });
}

bool FormatFunctions::isDouble(const zkstring& text) {
  double value;
  return isOfNumber(text) && scanDouble(text, value);
}

bool FormatFunctions::isInt(const zkstring& text) {
  if (text.length() > 9) return succeeds([&] { Parsing::parseInt(text); });
  bool hasDigit = false;
  for (unsigned int i = 0; i < text.length(); ++i) {
    const bool isDigit = Parsing::isNumericalDigit(text[i]);
    if (!isDigit && text[i] != '-' && !(i == 0 && text[i] == '+')) return false;
    hasDigit = hasDigit || isDigit;
  }
  return hasDigit;
}

bool FormatFunctions::isLong(const zkstring& text) {
  return succeeds([&] { Parsing::parseLong(text); });
}

int FormatFunctions::toInt(const zkstring& text) {
  // What "%d" scans, but defined beyond the range.
  const Terminated terminated(text);
  char* end = nullptr;
  const long value = std::strtol(terminated.get(), &end, 10);
  if (end == terminated.get()) cannotConvert(text, "int");
  return static_cast<int>(value);
}

double FormatFunctions::toDouble(const zkstring& text) {
  double value;
  if (!scanDouble(text, value)) cannotConvert(text, "double");
  return value;
}

float FormatFunctions::toFloat(const zkstring& text) {
  double value;
  if (!scanDouble(text, value)) cannotConvert(text, "float");
  return static_cast<float>(value);
}

}  // namespace zarvik
