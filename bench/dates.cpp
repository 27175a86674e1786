// Dates by the pattern yyyyMMdd-HH:mm:ss.SSS: printing and reading beside the C library's functions, with the
// milliseconds added by hand, and beside code written for this one form; and the count of days beside std::chrono's.
#include <chrono>
#include <cstddef>
#include <cstdlib>
#include <cstring>
#include <ctime>
#include <string>
#include <vector>

#include "date/DateTime.h"
#include "support/Subject.h"

using zarvik::DateTime;
using zarvik::TimeSpan;
using zarvik::zkstring;

namespace {

constexpr char pattern[] = "yyyyMMdd-HH:mm:ss.SSS";
constexpr char libraryPattern[] = "%Y%m%d-%H:%M:%S";
constexpr unsigned int textLength = 21;

/// Values in turn, so that no branch learns one by heart.
template <class T>
class Ring {
 public:
  explicit Ring(std::vector<T> values) : values(std::move(values)) {}
  const T& next() { return values[place = (place + 1) % 256]; }

 private:
  std::vector<T> values;
  std::size_t place = 0;
};

/// What `make` gives for 256 moments spread over 40 years.
template <class Make>
auto ringOf(Make make) {
  std::vector<decltype(make(DateTime()))> values;
  for (int i = 0; i < 256; ++i) {
    values.push_back(make(DateTime(1990, 1, 1, 0, 0, 0, 0) + TimeSpan(i * 5'000'011LL, i * 37 % 1000)));
  }
  return Ring(std::move(values));
}

std::string textOf(const DateTime& moment) { return moment.toString(pattern).c_str(); }

/// `fields` and the milliseconds behind them.
struct Moment {
  std::tm fields;
  int milliseconds;
};

Moment libraryMoment(const DateTime& moment) {
  Moment result{};
  strptime(textOf(moment).c_str(), libraryPattern, &result.fields);
  result.milliseconds = moment.getMilliSeconds();
  return result;
}

char* digits(char* out, int value, int width) {
  for (char* at = out + width; at != out; value /= 10) *--at = static_cast<char>('0' + value % 10);
  return out + width;
}

char* printFixed(char* out, const DateTime& value) {
  out = digits(out, value.getYear(), 4);
  out = digits(out, value.getMonth(), 2);
  out = digits(out, value.getDate(), 2);
  *out++ = '-';
  out = digits(out, value.getHours(), 2);
  *out++ = ':';
  out = digits(out, value.getMinutes(), 2);
  *out++ = ':';
  out = digits(out, value.getSeconds(), 2);
  *out++ = '.';
  return digits(out, value.getMilliSeconds(), 3);
}

int number(const char* at, int width) {
  int value = 0;
  for (const char* const end = at + width; at != end; ++at) {
    if (*at < '0' || *at > '9') std::abort();
    value = value * 10 + (*at - '0');
  }
  return value;
}

DateTime readFixed(const char* text, std::size_t length) {
  if (length != textLength || text[8] != '-' || text[11] != ':' || text[14] != ':' || text[17] != '.') std::abort();
  return DateTime(number(text, 4), number(text + 4, 2), number(text + 6, 2), number(text + 9, 2), number(text + 12, 2),
                  number(text + 15, 2), number(text + 18, 3));
}

int readLibrary(const char* text, std::tm& fields) {
  const char* rest = strptime(text, libraryPattern, &fields);
  if (rest == nullptr || *rest != '.') std::abort();
  int milliseconds = 0;
  for (++rest; *rest >= '0' && *rest <= '9'; ++rest) milliseconds = milliseconds * 10 + (*rest - '0');
  return milliseconds;
}

void prints() {
  const auto library = [ring = ringOf(libraryMoment)]() mutable {
    char out[64];
    const Moment& value = ring.next();
    const std::size_t length = std::strftime(out, sizeof out, libraryPattern, &value.fields);
    out[length] = '.';
    *digits(out + length + 1, value.milliseconds, 3) = '\0';
    benchmark::DoNotOptimize(out);
    return length;
  };
  const auto moment = [](const DateTime& value) { return value; };
  measure("date printed into a buffer", ours, [ring = ringOf(moment)]() mutable {
    char out[64];
    const unsigned int length = ring.next().asString(out, sizeof out, pattern);
    benchmark::DoNotOptimize(out);
    return length;
  });
  measure("date printed into a buffer", "strftime", library);
  measure("date printed into a buffer", "fixed form", [ring = ringOf(moment)]() mutable {
    char out[64];
    char* const end = printFixed(out, ring.next());
    benchmark::DoNotOptimize(out);
    return end;
  });
  measure("date printed to a string", ours,
          [ring = ringOf(moment), form = zkstring(pattern)]() mutable { return ring.next().toString(form); });
  measure("date printed to a string", "strftime", library);
}

void reads() {
  const auto library = [ring = ringOf(textOf)]() mutable {
    std::tm fields{};
    const int milliseconds = readLibrary(ring.next().c_str(), fields);
    benchmark::DoNotOptimize(fields);
    return milliseconds;
  };
  measure("date read from a view", ours, [ring = ringOf(textOf)]() mutable {
    const std::string& text = ring.next();
    return DateTime::fromString(text.data(), static_cast<unsigned int>(text.size()), pattern);
  });
  measure("date read from a view", "strptime", library);
  measure("date read from a view", "fixed form", [ring = ringOf(textOf)]() mutable {
    const std::string& text = ring.next();
    return readFixed(text.data(), text.size());
  });
  measure("date read from a terminated text", ours,
          [ring = ringOf(textOf)]() mutable { return DateTime::fromString(ring.next().c_str(), pattern); });
  measure("date read from a terminated text", "strptime", library);
}

void counts() {
  using namespace std::chrono;
  const auto daysOf = [](const DateTime& moment) { return sys_days(days(moment.getTimeSpan().days() - 2440588)); };
  measure("date to a count of days", ours, [ring = ringOf([](const DateTime& moment) { return moment; })]() mutable {
    return ring.next().getDatePortion().getTimeSpan();
  });
  measure("date to a count of days", "std::chrono", [ring = ringOf([&](const DateTime& moment) {
                                                       return year_month_day(daysOf(moment));
                                                     })]() mutable { return sys_days(ring.next()); });
  measure("count of days to a date", ours, [ring = ringOf([](const DateTime& moment) {
                                              return moment.getTimeSpan();
                                            })]() mutable { return zarvik::Date(ring.next()); });
  measure("count of days to a date", "std::chrono",
          [ring = ringOf(daysOf)]() mutable { return year_month_day(ring.next()); });
}

const bool registered = (prints(), reads(), counts(), true);
}  // namespace
