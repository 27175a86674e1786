#include "date/DateStr.h"

#include <algorithm>
#include <array>
#include <cassert>
#include <charconv>
#include <cstdlib>
#include <cstring>

#include "Exceptions.h"
#include "ThrowFrom.h"

namespace zarvik {
namespace {

constexpr char here[] = "cpp/date/DateStr";

constexpr std::string_view months[] = {"January", "February", "March",     "April",   "May",      "June",
                                       "July",    "August",   "September", "October", "November", "December"};

/// The texts "00" to "99", one behind the other.
constexpr auto pairs = [] {
  std::array<char, 200> texts{};
  for (unsigned int i = 0; i < 100; ++i) {
    texts[2 * i] = static_cast<char>('0' + i / 10);
    texts[2 * i + 1] = static_cast<char>('0' + i % 10);
  }
  return texts;
}();

/// The end of the run of equal characters that begins at `at`.
inline const char* endOfRun(const char* at, const char* end) {
  const char letter = *at;
  do ++at;
  while (at != end && *at == letter);
  return at;
}

char* copy(char* out, std::string_view text) {
  std::memcpy(out, text.data(), text.size());
  return out + text.size();
}

/// With zeros to the left of the whole text, the sign of a negative value included.
char* padded(char* out, __int64 value, int width) {
  char text[24];
  char* const end = std::to_chars(text, std::end(text), value).ptr;
  out = std::fill_n(out, std::max<std::ptrdiff_t>(width - (end - text), 0), '0');
  return std::copy(text, end, out);
}

inline char* pair(char* out, unsigned int value) {
  std::memcpy(out, &pairs[2 * value], 2);
  return out + 2;
}

inline char* twoDigits(char* out, int value) {
  return static_cast<unsigned int>(value) < 100 ? pair(out, static_cast<unsigned int>(value)) : padded(out, value, 2);
}

inline char* milliseconds(char* out, int value) {
  if (static_cast<unsigned int>(value) >= 1000) return padded(out, value, 3);
  *out = static_cast<char>('0' + value / 100);
  return pair(out + 1, static_cast<unsigned int>(value % 100));
}

inline char* printYear(char* out, __int64 year, std::ptrdiff_t run) {
  if (run != 4) return pair(out, static_cast<unsigned int>(year % 100));
  if (year > 9999) return padded(out, year, 5);
  return pair(pair(out, static_cast<unsigned int>(year / 100)), static_cast<unsigned int>(year % 100));
}

inline char* printMonth(char* out, int month, std::ptrdiff_t run) {
  if (run < 3) return twoDigits(out, month);
  assert(month >= 1 && month <= 12);
  const std::string_view name = months[month - 1];
  return copy(out, run == 3 ? name.substr(0, 3) : name);
}

}  // namespace

char* DateStr::print(char* out, const Fields& fields, std::string_view pattern) {
  const char* const end = pattern.data() + pattern.size();
  for (const char* at = pattern.data(); at != end;) {
    const char* const run = at;
    at = endOfRun(at, end);
    switch (*run) {
      case 'y':
        out = printYear(out, std::abs(__int64{fields.year}), at - run);
        break;
      case 'M':
        out = printMonth(out, fields.month, at - run);
        break;
      case 'd':
        out = twoDigits(out, fields.day);
        break;
      case 'H':
        out = twoDigits(out, fields.hours);
        break;
      case 'm':
        out = twoDigits(out, fields.minutes);
        break;
      case 's':
        out = twoDigits(out, fields.seconds);
        break;
      case 'S':
        out = milliseconds(out, fields.milliseconds);
        break;
      default:
        out = std::fill_n(out, at - run, *run);
    }
  }
  return out;
}

namespace {

/// A text and the pattern that it is read by. Errors are raised from copies, so that the reader itself can live in
/// registers.
struct Source {
  std::string_view text;
  std::string_view pattern;

  static zkstring shown(std::string_view view) { return zkstring(view.data(), static_cast<unsigned int>(view.size())); }
  zkstring context() const { return "pattern '" + shown(pattern) + "' found '" + shown(text); }
};

[[noreturn, gnu::cold, gnu::noinline]] void illegalRun(Source source, const char* field, const char* advice) {
  throwFrom(here, TransformRuntimeException("Illegal " + zkstring(field) + " pattern in '" +
                                            Source::shown(source.pattern) + "'. " + advice));
}

[[noreturn, gnu::cold, gnu::noinline]] void mismatch(Source source) {
  throwFrom(here, TransformRuntimeException("Error parsing date string, expected " + source.context()));
}

[[noreturn, gnu::cold, gnu::noinline]] void leftOver(Source source) {
  throwFrom(here,
            TransformRuntimeException("Additional characters at the end of date string, expected " + source.context()));
}

[[noreturn, gnu::cold, gnu::noinline]] void unknownMonth(Source source, std::size_t run) {
  throwFrom(here, TransformRuntimeException("Error parsing month part of date string, expected pattern " +
                                            Source::shown(source.pattern.substr(run)) + " found " +
                                            Source::shown(source.text)));
}

inline bool isDigit(char c) { return c >= '0' && c <= '9'; }
inline char lower(char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; }

bool beginsWith(std::string_view text, std::string_view name) {
  return text.size() >= name.size() &&
         std::equal(name.begin(), name.end(), text.begin(), [](char a, char b) { return lower(a) == lower(b); });
}

/// The place in a text that is read by a pattern; never behind the text's end.
class Cursor {
 public:
  explicit Cursor(std::string_view text) : at(text.data()), end(at + text.size()) {}

  bool atEnd() const { return at == end; }
  std::string_view rest() const { return {at, static_cast<std::size_t>(end - at)}; }
  void advance(std::size_t width) { at += std::min(width, rest().size()); }
  bool literal(char c) { return at != end && *at++ == c; }

  int twoDigits() {
    if (end - at < 2 || !isDigit(at[0]) || !isDigit(at[1])) return shortNumber(2);
    const int value = at[0] * 10 + at[1] - '0' * 11;
    at += 2;
    return value;
  }

  int fourDigits() {
    if (end - at < 4 || !std::all_of(at, at + 4, isDigit)) return shortNumber(4);
    const int high = twoDigits();
    return high * 100 + twoDigits();
  }

  /// Up to three digits; the cursor stays behind the last.
  int upToThreeDigits() {
    int value = 0;
    for (const char* const last = at + std::min<std::ptrdiff_t>(3, end - at); at != last && isDigit(*at); ++at) {
      value = value * 10 + (*at - '0');
    }
    return value;
  }

 private:
  /// A field that lacks digits: the number that those at its front spell.
  int shortNumber(std::size_t width) {
    int value = 0;
    for (const char c : rest().substr(0, width)) {
      if (!isDigit(c)) break;
      value = value * 10 + (c - '0');
    }
    advance(width);
    return value;
  }

  const char* at;
  const char* end;
};

inline int readYear(Cursor& cursor, std::size_t run, const Source& source) {
  if (run >= 4) return cursor.fourDigits();
  if (run == 1) illegalRun(source, "year", "At least 2 y's expected.");
  if (run == 3) illegalRun(source, "year", "Only patterns 'yy' and 'yyyy' are supported.");
  const int year = cursor.twoDigits();
  return year < 70 ? 2000 + year : 1900 + year;
}

int readMonthName(Cursor& cursor, std::size_t run, const Source& source, std::size_t runStart) {
  for (const std::string_view& month : months) {
    const std::string_view name = run == 3 ? month.substr(0, 3) : month;
    if (!beginsWith(cursor.rest(), name)) continue;
    cursor.advance(name.size());
    return static_cast<int>(&month - months) + 1;
  }
  unknownMonth(source, runStart);
}

inline int readMonth(Cursor& cursor, std::size_t run, const Source& source, std::size_t runStart) {
  if (run == 2) return cursor.twoDigits();
  if (run == 1) illegalRun(source, "month", "At least 2 M's expected.");
  return readMonthName(cursor, run, source, runStart);
}

inline int readTwoDigits(Cursor& cursor, std::size_t run, const Source& source, const char* field, const char* advice) {
  if (run != 2) illegalRun(source, field, advice);
  return cursor.twoDigits();
}

inline int readMilliseconds(Cursor& cursor, std::size_t run, const Source& source) {
  if (run > 3) illegalRun(source, "milli-seconds", "Only pattern 'SSS' is supported.");
  return cursor.upToThreeDigits();
}

inline void readLiterals(Cursor& cursor, char literal, std::size_t run, const Source& source) {
  do {
    if (!cursor.literal(literal)) mismatch(source);
  } while (--run != 0);
}
}  // namespace

DateStr::Fields DateStr::read(std::string_view text, std::string_view pattern) {
  const Source source{text, pattern};
  Fields fields;
  Cursor cursor(text);
  const char* const end = pattern.data() + pattern.size();
  for (const char* at = pattern.data(); at != end;) {
    const char letter = *at;
    const auto start = static_cast<std::size_t>(at - pattern.data());
    at = endOfRun(at, end);
    const std::size_t run = static_cast<std::size_t>(at - pattern.data()) - start;
    switch (letter) {
      case 'y':
        fields.year = readYear(cursor, run, source);
        break;
      case 'M':
        fields.month = readMonth(cursor, run, source, start);
        break;
      case 'd':
        fields.day = readTwoDigits(cursor, run, source, "date", "Only pattern 'dd' is supported.");
        break;
      case 'H':
        fields.hours = readTwoDigits(cursor, run, source, "hour", "Only pattern 'HH' is supported.");
        break;
      case 'm':
        fields.minutes = readTwoDigits(cursor, run, source, "minute", "Only pattern 'mm' is supported.");
        break;
      case 's':
        fields.seconds = readTwoDigits(cursor, run, source, "seconds", "Only pattern 'ss' is supported.");
        break;
      case 'S':
        fields.milliseconds = readMilliseconds(cursor, run, source);
        break;
      default:
        readLiterals(cursor, letter, run, source);
    }
  }
  if (!cursor.atEnd()) leftOver(source);
  return fields;
}

}  // namespace zarvik
