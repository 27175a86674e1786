// Decimal arithmetic and its texts, beside Boost's cpp_dec_float of the fitting width where that is installed. Products
// are exact, so that their peer has twice the operands' width; the peer "cut" keeps the upper half of each product.
#include <random>
#include <string>
#include <vector>

#include "BigDecimal.h"
#include "support/Subject.h"

#if __has_include(<boost/multiprecision/cpp_dec_float.hpp>)
#include <boost/multiprecision/cpp_dec_float.hpp>
#define HAS_BOOST_DECIMALS
#endif

using zarvik::BigDecimal;

namespace {

constexpr int pairs = 16;

/// Texts of `digits` random digits with a point in the middle.
std::vector<std::string> randomTexts(int digits) {
  static std::mt19937 random(11);
  std::vector<std::string> texts;
  for (int i = 0; i < 2 * pairs; ++i) {
    std::string text;
    for (int k = 0; k < digits; ++k) text += static_cast<char>('0' + random() % 10);
    text.front() = text.back() = '7';
    text[text.size() / 2] = '.';
    texts.push_back(text);
  }
  return texts;
}

std::string subject(const char* operation, const std::string& digits) {
  std::string name = operation;
  return name.append(digits);
}

/// Goes round the numbers, so that no operation sees the same operands twice in a row.
template <class Number>
struct Operands {
  explicit Operands(const std::vector<std::string>& texts) {
    for (const std::string& text : texts) numbers.emplace_back(text.c_str());
  }
  void step() { at = (at + 1) % pairs; }
  const Number& a() const { return numbers[at]; }
  const Number& b() const { return numbers[pairs + at]; }

  std::vector<Number> numbers;
  std::size_t at = 0;
};

template <class Number, class Operation>
void each(const std::string& subject, const char* who, const std::vector<std::string>& texts, Operation operation) {
  measure(subject, who, [operands = Operands<Number>(texts), operation]() mutable {
    operands.step();
    return Number(operation(operands.a(), operands.b()));
  });
}

template <class Number>
void multiplication(const std::string& digits, const char* who, const std::vector<std::string>& texts) {
  each<Number>(subject("multiply, ", digits), who, texts, [](const auto& a, const auto& b) { return a * b; });
}

template <class Number>
void arithmetic(const std::string& digits, const char* who, const std::vector<std::string>& texts) {
  each<Number>(subject("add, ", digits), who, texts, [](const auto& a, const auto& b) { return a + b; });
  each<Number>(subject("divide, ", digits), who, texts, [](const auto& a, const auto& b) { return a / b; });
  measure(subject("from text, ", digits), who, [texts, at = std::size_t{0}]() mutable {
    at = (at + 1) % pairs;
    return Number(texts[at].c_str());
  });
}

void textOfOurs(const std::string& digits, const std::vector<std::string>& texts) {
  measure(subject("to text, ", digits), ours, [operands = Operands<BigDecimal>(texts)]() mutable {
    operands.step();
    return operands.a().toString();
  });
}

#ifdef HAS_BOOST_DECIMALS
template <unsigned Digits>
using BoostDecimal = boost::multiprecision::number<boost::multiprecision::cpp_dec_float<Digits>>;

template <unsigned Digits>
void peer(const std::string& digits, const std::vector<std::string>& texts) {
  using Number = BoostDecimal<Digits>;
  arithmetic<Number>(digits, "cpp_dec_float", texts);
  multiplication<BoostDecimal<2 * Digits>>(digits, "cpp_dec_float", texts);
  multiplication<Number>(digits, "cpp_dec_float cut", texts);
  measure(subject("to text, ", digits), "cpp_dec_float", [operands = Operands<Number>(texts)]() mutable {
    operands.step();
    return operands.a().str(0, std::ios_base::fixed);
  });
}
#else
template <unsigned Digits>
void peer(const std::string&, const std::vector<std::string>&) {}
#endif

template <unsigned Digits>
void operationsOn() {
  const std::vector<std::string> texts = randomTexts(Digits);
  const std::string digits = std::to_string(Digits).append(" digits");
  arithmetic<BigDecimal>(digits, ours, texts);
  multiplication<BigDecimal>(digits, ours, texts);
  textOfOurs(digits, texts);
  if constexpr (Digits <= 1000) peer<Digits>(digits, texts);  // its numbers lie on the stack
}

const bool registered =
    (operationsOn<9>(), operationsOn<30>(), operationsOn<100>(), operationsOn<1000>(), operationsOn<100000>(), true);
}  // namespace
