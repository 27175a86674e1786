// FIX messages: cut into fields, read for their header, written from typed fields and summed up; beside QuickFIX, which
// parses without validation, and beside loops by hand that do the least that can be done.
#include <array>
#include <charconv>
#include <cstring>
#include <memory>
#include <numeric>
#include <string>
#include <string_view>

#include "../cpp/ByteScan.h"
#include "fix/FIXHeader.h"
#include "fix/FIXOutputWriter.h"
#include "fix/FIXTokenizer.h"
#include "support/QuickFixOrders.h"
#include "support/Subject.h"

using namespace zarvik;

namespace {

constexpr char soh = '\x01';
constexpr const char* byHand = "by hand";
constexpr const char* peer = "QuickFIX";

/// A message: a name, its text, and '|' for the delimiter.
struct Message {
  const char* name;
  std::string text;
};

std::string marketData() {
  std::string text =
      "8=FIX.4.4|9=1029|35=X|34=401|49=BROKER0123|52=20240614-07:40:42.131|56=BUYSIDE|262=REQ-20240|268=10|";
  for (int i = 0; i < 10; ++i) {
    char entry[200];
    std::snprintf(
        entry, sizeof entry,
        "279=%d|269=%d|278=Q-20240614-%06d|55=MSFT|270=425.%02d|271=%d0000|273=07:40:42.%03d|336=OPEN|346=%d|", i % 3,
        i % 2, 884100 + i, i * 9 + 10, i + 1, 100 + i, i);
    text += entry;
  }
  return text + "10=000|";
}

const Message messages[] = {
    {"order of 26 fields",
     "8=FIX.4.4|9=253|35=D|34=1092|49=BUYSIDE01|52=20240614-07:40:42.123|56=BROKER0123|50=TRADER7|57=DESK12|"
     "11=ORD-20240614-000123|1=ACC-00912-DMA-LONDON|21=1|55=MSFT|48=US5949181045|22=4|54=1|60=20240614-07:40:42.120|"
     "38=1500|40=2|44=425.25|15=USD|59=0|528=A|167=CS|207=XNAS|10=081|"},
    {"execution report of 36 fields",
     "8=FIX.4.4|9=360|35=8|34=2077|49=BROKER0123|52=20240614-07:40:42.131|56=BUYSIDE01|50=DESK12|57=TRADER7|"
     "37=EX-884213-7|11=ORD-20240614-000123|17=E-20240614-55120|150=F|39=1|1=ACC-00912|55=MSFT|48=US5949181045|22=4|"
     "54=1|38=1500|40=2|44=425.25|15=USD|59=0|47=A|32=300|31=425.24|151=1200|14=300|6=425.24|"
     "60=20240614-07:40:42.130|30=XNAS|207=XNAS|12=1.5|58=Partial fill of an order|10=105|"},
    {"market data of 100 fields", marketData()}};

std::string wire(const Message& message) {
  std::string text = message.text;
  std::replace(text.begin(), text.end(), '|', soh);
  return text;
}

zkstring shared(const std::string& text) { return zkstring(text.data(), static_cast<unsigned int>(text.size())); }

/// Tags and views, by one loop over the bytes.
std::size_t tokenizeByHand(std::string_view text) {
  std::size_t total = 0;
  const char* const end = text.data() + text.size();
  for (const char* p = text.data(); p != end;) {
    unsigned int tag = 0;
    for (; *p != '='; ++p) tag = tag * 10 + static_cast<unsigned int>(*p) - '0';
    const char* const value = ++p;
    while (*p != soh) ++p;
    total += tag + std::string_view(value, static_cast<std::size_t>(p++ - value)).size();
  }
  return total;
}

void tokenizing(const Message& message) {
  const std::string subject = std::string("tokenize, ") + message.name;
  const std::string text = wire(message);
  measure(subject, ours, [text = shared(text)] {
    FIXTokenizer tokenizer(text, soh);
    FIXTokenizer::TagValuePair pair;
    std::size_t total = 0;
    while (tokenizer.next(pair)) total += static_cast<unsigned int>(pair.getTag()) + pair.getValue().length();
    return total;
  });
  measure(subject, peer, [text] { return quickfix::parse(text); });
  measure(subject, byHand, [text] { return tokenizeByHand(text); });
}

void headers(const Message& message) {
  const std::string subject = std::string("header, ") + message.name;
  const std::string text = wire(message);
  measure(subject, ours, [text] {
    FIXHeader header;
    header.parseHeader(text.data(), static_cast<int>(text.size()));
    return header.getMsgSeqNum();
  });
  measure(subject, peer, [text] { return quickfix::parseHeader(text); });
}

void summing(const Message& message) {
  const std::string subject = std::string("checksum, ") + message.name;
  const std::string text = wire(message);
  measure(subject, ours, [text] { return scan::sum(text.data(), text.size()); });
  measure(subject, byHand, [text] { return std::accumulate(text.begin(), text.end(), 0) & 0xff; });
}

/// The values of the order, as a host has them.
struct Order {
  int sequence = 1092;
  DateTime sent = DateTime(2024, 6, 14, 7, 40, 42, 123);
  zkstring id = "ORD-20240614-000123";
  zkstring account = "ACC-00912-DMA-LONDON";
  zkstring symbol = "MSFT";
  zkstring security = "US5949181045";
  char side = '1';
  DateTime made = DateTime(2024, 6, 14, 7, 40, 42, 120);
  int quantity = 1500;
  double price = 425.25;
  zkstring currency = "USD";
};

class OrderWriter : public FIXOutputWriter {
 public:
  void writeHeader(DataObject* /*header*/, TransformContext& /*context*/) override {}
  void writeData(DataObject* /*data*/, TransformContext& /*context*/) override {}
  void writeTrailer(DataObject* /*trailer*/, TransformContext& /*context*/) override {}

  zkstring writeOrder(const Order& order) {
    initMessage();
    appendField("8", "FIX.4.4");
    appendField("35", "D");
    appendField("34", order.sequence);
    appendField("49", "BUYSIDE01");
    appendUTCTimestamp("52", order.sent);
    appendField("56", "BROKER0123");
    appendField("50", "TRADER7");
    appendField("57", "DESK12");
    appendField("11", order.id);
    appendField("1", order.account);
    appendField("21", '1');
    appendField("55", order.symbol);
    appendField("48", order.security);
    appendField("22", "4");
    appendField("54", order.side);
    appendUTCTimestamp("60", order.made);
    appendField("38", order.quantity);
    appendField("40", '2');
    appendField("44", order.price);
    appendField("15", order.currency);
    appendField("59", '0');
    appendField("528", 'A');
    appendField("167", "CS");
    appendField("207", "XNAS");
    return endMessage();
  }
};

/// The order with all its texts ready: copies into a block, the body length into its place, the sum by words.
std::string writeByHand(const std::array<std::pair<std::string_view, std::string_view>, 24>& fields) {
  std::array<char, 400> block;
  char* out = block.data() + 20;
  char* const body = out + 10;
  for (const auto& [tag, value] : fields) {
    out = std::copy(tag.begin(), tag.end(), out);
    *out++ = '=';
    out = std::copy(value.begin(), value.end(), out);
    *out++ = soh;
  }
  char length[8] = "9=";
  char* end = std::to_chars(length + 2, length + 7, out - body).ptr;
  *end++ = soh;
  char* const start = body - 10 - (end - length);
  std::memmove(start, body - 10, 10);
  std::copy(length, end, start + 10);
  const unsigned int sum = words::sum(start, static_cast<std::size_t>(out - start));
  const char tail[] = {'1',
                       '0',
                       '=',
                       static_cast<char>('0' + sum / 100),
                       static_cast<char>('0' + sum / 10 % 10),
                       static_cast<char>('0' + sum % 10),
                       soh};
  out = std::copy(std::begin(tail), std::end(tail), out);
  return std::string(start, out);
}

void writing() {
  const char* const subject = "write the order";
  measure(subject, ours,
          [writer = std::make_shared<OrderWriter>(), order = Order()] { return writer->writeOrder(order); });
  measure(subject, peer, [] { return quickfix::writeOrder(); });
  std::array<std::pair<std::string_view, std::string_view>, 24> fields;
  static const std::string text = messages[0].text;
  std::size_t count = 0;
  for (std::size_t p = 0; p < text.size();) {
    const std::size_t equal = text.find('=', p);
    const std::size_t end = text.find('|', p);
    const std::string_view tag(&text[p], equal - p);
    if (tag != "9" && tag != "10") fields[count++] = {tag, {&text[equal + 1], end - equal - 1}};
    p = end + 1;
  }
  measure(subject, "by hand, from texts", [fields] { return writeByHand(fields); });
}

const bool registered = [] {
  for (const Message& message : messages) tokenizing(message);
  for (const Message& message : messages) headers(message);
  writing();
  for (const Message& message : messages) summing(message);
  return true;
}();
}  // namespace
