#include "TagValueType.h"

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
constinit const zkstringliteral date("yyyyMMdd");
constinit const zkstringliteral monthYear("yyyyMM");

zkstring& format(const DateTime& value, const zkstring& pattern, zkstring& out) {
  Parsing::formatDate(value, pattern, out);
  return out;
}
}  // namespace

DateTime TagValueType::parseUTCTimestamp(const zkstring& text) { return Parsing::parseDate(text, timestamp.of(text)); }

zkstring& TagValueType::formatUTCTimestamp(const DateTime& value, zkstring& out) {
  return format(value, timestamp.of(value), out);
}

DateTime TagValueType::parseUTCTimeOnly(const zkstring& text) { return Parsing::parseDate(text, timeOnly.of(text)); }

zkstring& TagValueType::formatUTCTimeOnly(const DateTime& value, zkstring& out) {
  return format(value, timeOnly.of(value), out);
}

DateTime TagValueType::parseUTCDate(const zkstring& text) { return Parsing::parseDate(text, date); }
zkstring& TagValueType::formatUTCDate(const DateTime& value, zkstring& out) { return format(value, date, out); }

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
