// The value types at work: reads trades from a file, computes their amounts and totals exactly, and prints them by
// pattern.
//
//     values [FILE]
//
// A line holds the fields that trades.txt shows, with ';' between; lines that are empty or start with '#' are skipped.
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <map>
#include <memory>
#include <string>

#include "BigDecimal.h"
#include "Binary.h"
#include "Exceptions.h"
#include "formula/FormatFunctions.h"
#include "formula/TextFunctions.h"

using namespace zarvik;

namespace {

struct Trade {
  DateTime time;
  zkstring instrument;
  bool isSale = false;
  BigDecimal quantity;
  BigDecimal price;
  Binary key;
};

/// Digits, perhaps with a point between: what a BigDecimal takes is more, and what it does not take it reads as 0.
BigDecimal decimalOf(const zkstring& text) {
  const StringList parts = TextFunctions::split(".", text);
  bool isDecimal = parts.size() == 1 || parts.size() == 2;
  for (const zkstring& part : parts) isDecimal = isDecimal && !part.empty() && TextFunctions::isNum(part);
  if (!isDecimal) throw TransformException("'" + text + "' is no decimal number");
  return BigDecimal(text);
}

// The readers of dates and of hexadecimal digits forgive much, so what they read is held against the text.
DateTime timeOf(const zkstring& text) {
  const zkstringliteral pattern("yyyy-MM-dd HH:mm:ss.SSS");
  const DateTime time = FormatFunctions::parseDate(text, pattern);
  if (FormatFunctions::formatDate(time, pattern) != text) throw TransformException("'" + text + "' is no time");
  return time;
}

Binary bytesOf(const zkstring& text) {
  const Binary bytes = Binary::fromHexString(text);
  if (bytes.toHexString() != TextFunctions::upper(text)) throw TransformException("'" + text + "' is no hex data");
  return bytes;
}

Trade tradeOf(const zkstring& line) {
  const StringList fields = TextFunctions::split(";", line);
  if (fields.size() != 6)
    throw TransformException("6 fields expected, found " + FormatFunctions::toText(fields.size()));
  const auto field = [&](int i) { return TextFunctions::trim(fields[i]); };
  const zkstring side = field(2);
  if (side != "BUY" && side != "SELL") throw TransformException("'" + side + "' is neither BUY nor SELL");
  return {timeOf(field(0)), field(1), side == "SELL", decimalOf(field(3)), decimalOf(field(4)), bytesOf(field(5))};
}

/// With two decimals and commas between thousands.
zkstring money(const BigDecimal& amount) {
  const std::unique_ptr<char, void (*)(void*)> text(amount.toFixPtStringExp(2, '.', ',', 3), std::free);
  return zkstring(text.get());
}

void print(const zkstring& pattern, const ObjectList& arguments) {
  std::puts(FormatFunctions::format(pattern, arguments).c_str());
}

/// What one instrument's trades add up to: exactly, and for comparison in binary floating point.
struct Total {
  void add(const Trade& trade, const BigDecimal& amount) {
    quantity = trade.isSale ? quantity - trade.quantity : quantity + trade.quantity;
    paid = trade.isSale ? paid - amount : paid + amount;
    const double rounded = trade.quantity.toDouble() * trade.price.toDouble();
    paidInDouble += trade.isSale ? -rounded : rounded;
  }
  BigDecimal quantity;
  BigDecimal paid;
  double paidInDouble = 0;
};

void report(const Trade& trade, const BigDecimal& amount) {
  ObjectList arguments(FormatFunctions::formatDate(trade.time, "dd MMM yyyy, HH:mm:ss"), trade.instrument);
  arguments.add(trade.isSale ? "sold" : "bought").add(trade.quantity).add(trade.price).add(money(amount));
  print("{0}: {2} {3} {1} at {4} for {5}, key {6}", arguments.add(trade.key.toBase64String()));
}

void process(std::istream& file, int& lineNumber) {
  std::map<zkstring, Total> totals;
  for (std::string line; std::getline(file, line);) {
    ++lineNumber;
    const zkstring text = TextFunctions::trim(zkstring(line.data(), static_cast<unsigned int>(line.size())));
    if (text.empty() || TextFunctions::startsWith(text, "#")) continue;
    const Trade trade = tradeOf(text);
    const BigDecimal amount = trade.quantity * trade.price;
    totals[trade.instrument].add(trade, amount);
    report(trade, amount);
  }
  if (file.bad()) throw TransformException("cannot be read");
  for (const auto& [instrument, total] : totals) {
    ObjectList arguments(instrument);
    arguments.add(total.quantity).add(total.paid).add(total.paidInDouble);
    print("{0}: position {1}, paid exactly {2} (in floating point {3})", arguments);
  }
}
}  // namespace

int main(int count, char** arguments) {
  const char* const name = count > 1 ? arguments[1] : TRADES_FILE;
  std::ifstream file(name);
  int lineNumber = 0;
  try {
    if (!file) throw TransformException("cannot be opened");
    process(file, lineNumber);
    if (std::fflush(stdout) == 0 && std::ferror(stdout) == 0) return 0;
    std::fprintf(stderr, "values: cannot write the output\n");
    return 1;
  } catch (const Exception& error) {
    std::fflush(stdout);
    std::fprintf(stderr, "values: %s:%d: %s\n", name, lineNumber, error.getMessage().c_str());
    return 1;
  }
}
