#include "date/DateStr.h"

#include <algorithm>
#include <bit>
#include <cassert>
#include <charconv>
#include <cstdint>
#include <cstdlib>
#include <cstring>

#include "../DigitPairs.h"
#include "Exceptions.h"
#include "ThrowFrom.h"

namespace zarvik {
namespace {

constexpr char here[] = "cpp/date/DateStr";

constexpr std::string_view months[] = {"January", "February", "March",     "April",   "May",      "June",
                                       "July",    "August",   "September", "October", "November", "December"};

/// The length of the run of equal characters that begins at `at`.
inline std::size_t runAt(const char* at, const char* end) {
  const char* const start = at;
  const char letter = *at;
  do ++at;
  while (at != end && *at == letter);
  return static_cast<std::size_t>(at - start);
}

/// Whether `c` stands for a field; all other characters of a pattern stand for themselves.
inline bool isFieldLetter(char c) {
  constexpr std::uint64_t letters = [] {
    std::uint64_t bits = 0;
    for (const char letter : {'y', 'M', 'd', 'H', 'm', 's', 'S'}) bits |= std::uint64_t{1} << (letter - 64);
    return bits;
  }();
  return (c & 0xC0) == 0x40 && (letters >> (c & 0x3F) & 1) != 0;
}

/// `count` characters, at most eight, as a number with the first one in its lowest byte.
template <std::size_t count>
std::uint64_t wordAt(const char* at) {
  std::uint64_t word = 0;
  std::memcpy(&word, at, count);
  if constexpr (std::endian::native == std::endian::big) word = __builtin_bswap64(word);
  return word;
}

/// The same number of a constant.
constexpr std::uint64_t wordOf(std::string_view text) {
  std::uint64_t word = 0;
  for (std::size_t i = text.size(); i-- > 0;) word = word << 8 | static_cast<unsigned char>(text[i]);
  return word;
}

// Two sequences of runs that nearly all patterns hold are printed and read as one block of eight characters.
constexpr std::size_t blockSize = 8;
constexpr std::size_t fractionSize = 4;
constexpr std::uint64_t dateBlock = wordOf("yyyyMMdd");
constexpr std::uint64_t timeBlock = wordOf("HH:mm:ss");

/// Whether `block` begins at `at` and its last run ends with it.
inline bool blockAt(const char* at, const char* end, std::uint64_t block) {
  const auto size = static_cast<std::size_t>(end - at);
  return size >= blockSize && wordAt<blockSize>(at) == block &&
         (size == blockSize || at[blockSize] != at[blockSize - 1]);
}

/// Whether ".SSS" stands at `at`, as it does behind most times, and no fourth S.
inline bool fractionAt(const char* at, const char* end) {
  const auto size = static_cast<std::size_t>(end - at);
  return size >= fractionSize && wordAt<fractionSize>(at) == wordOf(".SSS") &&
         (size == fractionSize || at[fractionSize] != 'S');
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

inline char* twoDigits(char* out, int value) {
  return static_cast<unsigned int>(value) < 100 ? putPair(out, static_cast<unsigned int>(value))
                                                : padded(out, value, 2);
}

inline char* milliseconds(char* out, int value) {
  if (static_cast<unsigned int>(value) >= 1000) return padded(out, value, 3);
  *out = static_cast<char>('0' + value / 100);
  return putPair(out + 1, static_cast<unsigned int>(value % 100));
}

inline char* printYear(char* out, int signedYear, std::size_t run) {
  const __int64 year = std::abs(__int64{signedYear});
  if (run != 4) return putPair(out, static_cast<unsigned int>(year % 100));
  if (year > 9999) return padded(out, year, 5);
  return putPair(putPair(out, static_cast<unsigned int>(year / 100)), static_cast<unsigned int>(year % 100));
}

inline char* printMonth(char* out, int month, std::size_t run) {
  if (run < 3) return twoDigits(out, month);
  assert(month >= 1 && month <= 12);
  const std::string_view name = months[month - 1];
  return copy(out, run == 3 ? name.substr(0, 3) : name);
}

inline char* printDate(char* out, const DateTime& value) {
  return twoDigits(twoDigits(printYear(out, value.getYear(), 4), value.getMonth()), value.getDate());
}

inline char* printTime(char* out, const DateTime& value) {
  out = twoDigits(out, value.getHours());
  *out++ = ':';
  out = twoDigits(out, value.getMinutes());
  *out++ = ':';
  return twoDigits(out, value.getSeconds());
}

inline char* printRun(char* out, const DateTime& value, char letter, std::size_t run) {
  switch (letter) {
    case 'y':
      return printYear(out, value.getYear(), run);
    case 'M':
      return printMonth(out, value.getMonth(), run);
    case 'd':
      return twoDigits(out, value.getDate());
    case 'H':
      return twoDigits(out, value.getHours());
    case 'm':
      return twoDigits(out, value.getMinutes());
    case 's':
      return twoDigits(out, value.getSeconds());
    default:
      return milliseconds(out, value.getMilliSeconds());
  }
}
}  // namespace

char* DateStr::print(char* out, const DateTime& value, std::string_view pattern) {
  const char* const end = pattern.data() + pattern.size();
  for (const char* at = pattern.data(); at != end;) {
    if (!isFieldLetter(*at)) {
      *out++ = *at++;
    } else if (blockAt(at, end, dateBlock)) {
      out = printDate(out, value);
      at += blockSize;
    } else if (blockAt(at, end, timeBlock)) {
      out = printTime(out, value);
      at += blockSize;
    } else {
      const std::size_t run = runAt(at, end);
      out = printRun(out, value, *at, run);
      at += run;
    }
  }
  return out;
}

namespace {

/// A text and the pattern that it is read by.
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

/// The number that the digits at the front of `text` spell.
int leadingNumber(std::string_view text) {
  int value = 0;
  for (const char c : text) {
    if (!isDigit(c)) break;
    value = value * 10 + (c - '0');
  }
  return value;
}

/// Eight characters read at once: each byte is the digit that it is, or 0 for the character that `zeros` has there.
class DigitBlock {
 public:
  DigitBlock(std::uint64_t word, std::uint64_t zeros) : digits(word ^ zeros), pairs(digits * 10 + (digits >> 8)) {}

  /// Whether every byte is at most as large as that of `largest`; all of these are below 0x80.
  bool isWithin(std::uint64_t largest) const {
    constexpr std::uint64_t tops = 0x8080808080808080U;
    return (((digits + (~tops - largest)) | digits) & tops) == 0;
  }
  int digitAt(int place) const { return static_cast<int>(digits >> (8 * place) & 0xFF); }
  int pairAt(int place) const { return static_cast<int>(pairs >> (8 * place) & 0xFF); }

 private:
  std::uint64_t digits;
  std::uint64_t pairs;  ///< in each byte the number that its digit and the next one spell
};

/// What is read; by default what fields that a pattern lacks are read as.
struct Fields {
  int year = 1970;
  int month = 1;
  int day = 1;
  int hours = 0;
  int minutes = 0;
  int seconds = 0;
  int milliseconds = 0;
};

/// The place in a text that is read by a pattern; never behind the text's end.
class Cursor {
 public:
  explicit Cursor(std::string_view text) : at(text.data()), end(at + text.size()) {}

  bool atEnd() const { return at == end; }
  std::string_view rest() const { return {at, static_cast<std::size_t>(end - at)}; }
  void advance(std::size_t width) { at += std::min(width, rest().size()); }

  bool literal(char c) {
    if (at == end || *at != c) return false;
    ++at;
    return true;
  }

  /// A field that lacks digits gives the number that those at its front spell.
  template <int width>
  int number() {
    int value = 0;
    if (allDigits<width>(at, value)) {
      at += width;
      return value;
    }
    value = leadingNumber(rest().substr(0, width));
    advance(width);
    return value;
  }

  /// Up to three digits; the cursor stays behind the last.
  int upToThreeDigits() {
    int value = 0;
    if (allDigits<3>(at, value)) {
      at += 3;
      return value;
    }
    const std::string_view digits = rest().substr(0, 3);
    advance(static_cast<std::size_t>(std::find_if_not(digits.begin(), digits.end(), isDigit) - digits.begin()));
    return leadingNumber(digits);
  }

  /// The fields of a block, if eight characters of the right kind are there; otherwise nothing is read.
  bool date(Fields& fields) {
    if (rest().size() < blockSize) return false;
    const DigitBlock block(wordAt<blockSize>(at), wordOf("00000000"));
    if (!block.isWithin(0x0909090909090909U)) return false;
    fields.year = block.pairAt(0) * 100 + block.pairAt(2);
    fields.month = block.pairAt(4);
    fields.day = block.pairAt(6);
    at += blockSize;
    return true;
  }

  bool time(Fields& fields) {
    if (rest().size() < blockSize) return false;
    const DigitBlock block(wordAt<blockSize>(at), wordOf("00:00:00"));
    if (!block.isWithin(0x0909000909000909U)) return false;
    fields.hours = block.pairAt(0);
    fields.minutes = block.pairAt(3);
    fields.seconds = block.pairAt(6);
    at += blockSize;
    return true;
  }

  bool fraction(Fields& fields) {
    if (rest().size() < fractionSize) return false;
    const DigitBlock block(wordAt<fractionSize>(at), wordOf(".000"));
    if (!block.isWithin(0x09090900U)) return false;
    fields.milliseconds = block.pairAt(1) * 10 + block.digitAt(3);
    at += fractionSize;
    return true;
  }

 private:
  /// Whether `width` digits stand at `place`; `value` is their number if so.
  template <int width>
  bool allDigits(const char* place, int& value) const {
    if (end - place < width) return false;
    int number = 0;
    int excess = 0;  // negative as soon as one digit is above 9
    for (int i = 0; i < width; ++i) {
      const int digit = static_cast<unsigned char>(place[i] - '0');
      excess |= 9 - digit;
      number = number * 10 + digit;
    }
    if (excess < 0) return false;
    value = number;
    return true;
  }

  const char* at;
  const char* end;
};

inline int readYear(Cursor& cursor, std::size_t run, const Source& source) {
  if (run >= 4) return cursor.number<4>();
  if (run == 1) illegalRun(source, "year", "At least 2 y's expected.");
  if (run == 3) illegalRun(source, "year", "Only patterns 'yy' and 'yyyy' are supported.");
  const int year = cursor.number<2>();
  return year < 70 ? 2000 + year : 1900 + year;
}

/// The number of the first month whose name, or short name, begins `text`; 0 if there is none.
int monthAt(std::string_view text, bool isShort) {
  int number = 0;
  for (const std::string_view& month : months) {
    ++number;
    if (beginsWith(text, isShort ? month.substr(0, 3) : month)) return number;
  }
  return 0;
}

inline int readMonth(Cursor& cursor, std::size_t run, const Source& source, std::size_t runStart) {
  if (run == 2) return cursor.number<2>();
  if (run == 1) illegalRun(source, "month", "At least 2 M's expected.");
  const int month = monthAt(cursor.rest(), run == 3);
  if (month == 0) unknownMonth(source, runStart);
  cursor.advance(run == 3 ? 3 : months[month - 1].size());
  return month;
}

inline int readTwoDigits(Cursor& cursor, std::size_t run, const Source& source, const char* field, const char* advice) {
  if (run != 2) illegalRun(source, field, advice);
  return cursor.number<2>();
}

inline int readMilliseconds(Cursor& cursor, std::size_t run, const Source& source) {
  if (run > 3) illegalRun(source, "milli-seconds", "Only pattern 'SSS' is supported.");
  return cursor.upToThreeDigits();
}

void readRun(Cursor& cursor, Fields& fields, const Source& source, std::size_t start, std::size_t run) {
  switch (source.pattern[start]) {
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
    default:
      fields.milliseconds = readMilliseconds(cursor, run, source);
  }
}

/// Reads run by run from `at` of the pattern on, and raises all errors.
[[gnu::noinline]] Fields readRuns(Cursor cursor, Fields fields, Source source, const char* at) {
  const char* const end = source.pattern.data() + source.pattern.size();
  while (at != end) {
    const std::size_t run = isFieldLetter(*at) ? runAt(at, end) : 1;
    if (isFieldLetter(*at)) {
      readRun(cursor, fields, source, static_cast<std::size_t>(at - source.pattern.data()), run);
    } else if (!cursor.literal(*at)) {
      mismatch(source);
    }
    at += run;
  }
  if (!cursor.atEnd()) leftOver(source);
  return fields;
}

DateTime dateTimeOf(const Fields& fields) {
  return DateTime(fields.year, fields.month, fields.day, fields.hours, fields.minutes, fields.seconds,
                  fields.milliseconds);
}

/// Reads what most patterns are: a date block, a literal, a time block, or the first or last of them alone. Gives the
/// place in the pattern up to which that went.
inline const char* readBlocks(Cursor& cursor, Fields& fields, const char* at, const char* end) {
  if (blockAt(at, end, dateBlock) && cursor.date(fields)) at += blockSize;
  if (at != end && !isFieldLetter(*at) && cursor.literal(*at)) ++at;
  if (blockAt(at, end, timeBlock) && cursor.time(fields)) {
    at += blockSize;
    if (fractionAt(at, end) && cursor.fraction(fields)) at += fractionSize;
  }
  return at;
}
}  // namespace

DateTime DateStr::read(std::string_view text, std::string_view pattern) {
  Fields fields;
  Cursor cursor(text);
  const char* const end = pattern.data() + pattern.size();
  const char* const at = readBlocks(cursor, fields, pattern.data(), end);
  if (at != end || !cursor.atEnd()) return dateTimeOf(readRuns(cursor, fields, {text, pattern}, at));
  return dateTimeOf(fields);
}

}  // namespace zarvik
