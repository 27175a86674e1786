// Numbers to text and back, 1000 at a time, against the standard library and the C library. All texts are terminated.
#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <limits>
#include <random>

#include "Conversion.h"
#include "Parsing.h"
#include "support/Subject.h"

using zarvik::Parsing;
using zarvik::zkstring;

namespace {

constexpr int batch = 1000;

/// The value of each number of a batch, drawn by `draw` from the same source for every subject.
template <class T, class Draw>
std::vector<T> batchOf(Draw draw) {
  std::mt19937_64 random(1);
  std::vector<T> values;
  for (int i = 0; i < batch; ++i) values.push_back(static_cast<T>(draw(random)));
  return values;
}

template <class T>
std::vector<T> wholesOfLengths(int shortest, int longest) {
  return batchOf<T>([=](auto& random) {
    const int digits = shortest + static_cast<int>(random() % static_cast<unsigned>(longest - shortest + 1));
    T low = 1;
    for (int i = 1; i < digits; ++i) low = static_cast<T>(low * 10);
    const auto span = static_cast<unsigned long long>(std::min<long double>(
        9.0L * static_cast<long double>(low), static_cast<long double>(std::numeric_limits<T>::max() - low)));
    return low + static_cast<T>(random() % span);
  });
}

/// Has `who` write each value of a batch: `write(value, text)`.
template <class T, class Write>
void printing(const std::string& subject, const char* who, const std::vector<T>& values, Write write) {
  measure(subject, who, [values, write] {
    char text[400];
    for (const T& value : values) {
      write(value, text);
      benchmark::ClobberMemory();
    }
    return text[0];
  });
}

/// Has `who` read each text of a batch: `read(text)`.
template <class T, class Text, class Read>
void reading(const std::string& subject, const char* who, const std::vector<Text>& texts, Read read) {
  measure(subject, who, [texts, read] {
    for (const Text& text : texts) benchmark::DoNotOptimize(T{read(text)});
    return 0;
  });
}

template <class T, class Ours>
void printsWholes(const std::string& subject, const std::vector<T>& values, const char* format, Ours write) {
  printing(subject, ours, values, write);
  printing(subject, "to_chars", values, [](T value, char* text) { *std::to_chars(text, text + 24, value).ptr = '\0'; });
  printing(subject, "snprintf", values, [format](T value, char* text) { std::snprintf(text, 24, format, value); });
}

template <class T>
std::vector<zkstring> textsOf(const std::vector<T>& values) {
  std::vector<zkstring> texts;
  for (const T value : values) {
    char text[64];
    *std::to_chars(text, text + sizeof text - 1, value).ptr = '\0';
    texts.emplace_back(text).c_str();  // terminated, as the C library asks for
  }
  return texts;
}

template <class T, class Ours, class CLibrary>
void reads(const std::string& subject, const std::vector<T>& values, Ours read, const char* peer, CLibrary readByC) {
  const std::vector<zkstring> texts = textsOf(values);
  reading<T>(subject, ours, texts, read);
  reading<T>(subject, "from_chars", texts, [](const zkstring& text) {
    T value{};
    std::from_chars(text.data(), text.data() + text.length(), value);
    return value;
  });
  reading<T>(subject, peer, texts, [readByC](const zkstring& text) { return readByC(text.data()); });
}

const auto parseInt = [](const zkstring& text) { return Parsing::parseInt(text); };
const auto parseLong = [](const zkstring& text) { return Parsing::parseLong(text); };
const auto parseDouble = [](const zkstring& text) { return Parsing::parseDouble(text); };
const auto strtoll10 = [](const char* text) { return std::strtoll(text, nullptr, 10); };
const auto strtodAll = [](const char* text) { return std::strtod(text, nullptr); };

// Not pointers to functions, which no compiler could expand in place as it does `std::to_chars`.
const auto v_itoa = [](int value, char* text) { zarvik::v_itoa(value, text); };
const auto v_ltoa = [](__int64 value, char* text) { zarvik::v_ltoa(value, text); };

void wholes() {
  printsWholes("int to text, 0 to 59", batchOf<int>([](auto& random) { return random() % 60; }), "%d", v_itoa);
  for (int digits = 1; digits <= 10; ++digits) {
    const std::string subject = "int to text, " + std::to_string(digits) + " digits";
    printsWholes(subject, wholesOfLengths<int>(digits, digits), "%d", v_itoa);
  }
  for (int digits = 1; digits <= 19; ++digits) {
    const std::string subject = "long to text, " + std::to_string(digits) + " digits";
    printsWholes(subject, wholesOfLengths<__int64>(digits, digits), "%lld", v_ltoa);
  }
  printsWholes("long to text, 1 to 18 digits", wholesOfLengths<__int64>(1, 18), "%lld", v_ltoa);
  for (const int digits : {1, 3, 6, 9, 10}) {
    const std::string subject = "text to int, " + std::to_string(digits) + " digits";
    reads(subject, wholesOfLengths<int>(digits, digits), parseInt, "atoi", std::atoi);
  }
  for (const int digits : {3, 6, 10, 19}) {
    const std::string subject = "text to long, " + std::to_string(digits) + " digits";
    reads(subject, wholesOfLengths<__int64>(digits, digits), parseLong, "strtoll", strtoll10);
  }
  reads("text to long, 1 to 18 digits", wholesOfLengths<__int64>(1, 18), parseLong, "strtoll", strtoll10);
}

std::vector<double> prices() {
  return batchOf<double>([](auto& random) { return static_cast<double>(random() % 100'000'000) / 10'000; });
}

/// Numbers near 1 of all 53 bits, so of 16 and 17 digits.
std::vector<double> fullDoubles() {
  return batchOf<double>([](auto& random) { return std::ldexp(static_cast<double>(random() >> 11), -52); });
}

void printsDoubles(const std::string& subject, const std::vector<double>& values) {
  printing(subject, ours, values, [](double value, char* text) { zarvik::doubleToString(value, text); });
  printing(subject, "to_chars", values,
           [](double value, char* text) { std::to_chars(text, text + 400, value, std::chars_format::fixed, 8); });
  printing(subject, "snprintf", values, [](double value, char* text) { std::snprintf(text, 400, "%.8f", value); });
}

void doubles() {
  printsDoubles("double to text, prices", prices());
  printsDoubles("double to text, 17 digits", fullDoubles());
  reads("text to double, prices", prices(), parseDouble, "strtod", strtodAll);
  reads("text to double, 17 digits", fullDoubles(), parseDouble, "strtod", strtodAll);
}

const bool registered = (wholes(), doubles(), true);
}  // namespace
