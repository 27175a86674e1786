#include "TagValueType.h"

#include <array>
#include <cstring>

#include "TagValueTimes.h"
#include "date/DateStr.h"

namespace zarvik {
namespace {

/// The pattern of a value that may have milliseconds, with them and without.
struct PatternPair {
  zkstringliteral precise;
  zkstringliteral plain;

  const zkstring& of(const zkstring& text) const { return text.find('.') != ~0U ? precise : plain; }
  const zkstring& of(const DateTime& value) const { return value.getMilliSeconds() < 1 ? plain : precise; }
};

constinit const PatternPair timestamp{"yyyyMMdd-HH:mm:ss.SSS", "yyyyMMdd-HH:mm:ss"};
constinit const PatternPair timeOnly{"HH:mm:ss.SSS", "HH:mm:ss"};
constinit const PatternPair date{"yyyyMMdd", "yyyyMMdd"};
constexpr unsigned int longestPattern = sizeof "yyyyMMdd-HH:mm:ss.SSS" - 1;
static_assert(longestPattern * DateStr::WIDEST_CHARACTER <= widestTime);
constinit const zkstringliteral monthYear("yyyyMM");

/// The texts "00" to "99", one behind the other.
constexpr auto pairs = [] {
  std::array<char, 200> texts{};
  for (unsigned int i = 0; i < 200; ++i) texts[i] = static_cast<char>('0' + (i % 2 == 0 ? i / 20 : i / 2 % 10));
  return texts;
}();

char* putPair(char* out, unsigned int n) {
  std::memcpy(out, &pairs[std::size_t{2} * n], 2);
  return out + 2;
}

/// A field's value; a negative one, which only an unchecked date has, becomes larger than any other.
unsigned int field(int value) { return static_cast<unsigned int>(value); }

/// Whether the fields have the widths of the patterns, as those of every valid time of the years 0 to 9999 have.
bool isOrdinary(const DateTime& value) {
  const int others = value.getMonth() | value.getDate() | value.getHours() | value.getMinutes() | value.getSeconds();
  return field(value.getYear()) < 10'000 && field(value.getMilliSeconds()) < 1000 && field(others) < 64;
}

char* putDate(char* out, const DateTime& value) {
  const unsigned int year = field(value.getYear());
  out = putPair(putPair(out, year / 100), year % 100);
  return putPair(putPair(out, field(value.getMonth())), field(value.getDate()));
}

char* putTime(char* out, const DateTime& value) {
  out = putPair(out, field(value.getHours()));
  *out++ = ':';
  out = putPair(out, field(value.getMinutes()));
  *out++ = ':';
  out = putPair(out, field(value.getSeconds()));
  const unsigned int milliseconds = field(value.getMilliSeconds());
  if (milliseconds == 0) return out;
  *out++ = '.';
  *out++ = static_cast<char>('0' + milliseconds / 100);
  return putPair(out, milliseconds % 100);
}

char* putTimestamp(char* out, const DateTime& value) {
  char* const time = putDate(out, value);
  *time = '-';
  return putTime(time + 1, value);
}

/// By the pattern, or as `Put` writes ordinary fields.
template <char* (*Put)(char*, const DateTime&)>
inline char* put(char* out, const DateTime& value, const PatternPair& patterns) {
  if (isOrdinary(value)) [[likely]]
    return Put(out, value);
  const zkstring& pattern = patterns.of(value);
  return DateStr::print(out, value, {pattern.data(), pattern.length()});
}

/// Without a block that is larger than an ordinary text needs.
template <char* (*Put)(char*, const DateTime&)>
inline zkstring& format(const DateTime& value, zkstring& out) {
  char* const text = out.getBuffer(isOrdinary(value) ? longestPattern : widestTime);
  out.setBufferLength(static_cast<int>(Put(text, value) - text));
  return out;
}

zkstring& format(const DateTime& value, const zkstring& pattern, zkstring& out) {
  Parsing::formatDate(value, pattern, out);
  return out;
}
}  // namespace

char* putUTCTimestamp(char* out, const DateTime& value) { return put<putTimestamp>(out, value, timestamp); }
char* putUTCTimeOnly(char* out, const DateTime& value) { return put<putTime>(out, value, timeOnly); }
char* putUTCDate(char* out, const DateTime& value) { return put<putDate>(out, value, date); }

DateTime TagValueType::parseUTCTimestamp(const zkstring& text) { return Parsing::parseDate(text, timestamp.of(text)); }

zkstring& TagValueType::formatUTCTimestamp(const DateTime& value, zkstring& out) {
  return format<putUTCTimestamp>(value, out);
}

DateTime TagValueType::parseUTCTimeOnly(const zkstring& text) { return Parsing::parseDate(text, timeOnly.of(text)); }

zkstring& TagValueType::formatUTCTimeOnly(const DateTime& value, zkstring& out) {
  return format<putUTCTimeOnly>(value, out);
}

DateTime TagValueType::parseUTCDate(const zkstring& text) { return Parsing::parseDate(text, date.plain); }
zkstring& TagValueType::formatUTCDate(const DateTime& value, zkstring& out) { return format<putUTCDate>(value, out); }

DateTime TagValueType::parseLocalMktTimestamp(const zkstring& text) {
  return Parsing::parseDate(text, timestamp.plain);
}

zkstring& TagValueType::formatLocalMktTimestamp(const DateTime& value, zkstring& out) {
  return format(value, timestamp.plain, out);
}

DateTime TagValueType::parsemonth_year(const zkstring& text) { return Parsing::parseDate(text, monthYear); }
zkstring& TagValueType::formatmonth_year(const DateTime& value, zkstring& out) { return format(value, monthYear, out); }

zkstring& TagValueType::formatUTCTimestamp_int64(const DateTime& value, zkstring& out) {
  dlongToString(value.toTimestamp(), out);
  return out;
}

zkstring& TagValueType::formatBoolean(bool value, zkstring& out) {
  return out = value ? zkstringliteral("Y") : zkstringliteral("N");
}

}  // namespace zarvik
