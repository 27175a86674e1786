// A long run on the example's road: soak [MESSAGES], 5 million by default. Tells the resident memory after the first
// ten thousand and along the way; it fails if that grows.
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <iterator>
#include <string>

#include "ContextOutputProtocol.h"
#include "Exceptions.h"
#include "LookupContextFactory.h"
#include "MessageRouter.h"
#include "StringInputSource.h"
#include "TransformContext.h"
#include "orders/Cartridge.h"
#include "orders/Names.h"

using namespace zarvik;

namespace {

constexpr long warmUp = 10'000;
constexpr long uncertainty = 64 * 4;  // KiB: the kernel may count pages late, in batches of 64

// '|' stands for SOH and '#' for the number of the message. A large order, which is filed as XML too; one with parties;
// executions, which are filed in the byte form; and two that are refused, by the parser and by the rules.
constexpr const char* messages[] = {
    "8=FIX.4.2|9=0|35=D|49=A|56=B|34=#|52=20260310-14:32:36|11=X#|1=4711|21=1|55=SAP.DE|48=DE0007164600|22=4|54=1|"
    "60=20260310-14:32:36|38=90000|40=2|44=247.3|59=0|78=2|79=F|80=60000|79=G|80=30000|95=3|96=a=b|10=000|",
    "8=FIX.4.4|9=0|35=D|49=A|56=B|34=#|52=20260310-14:32:36.135|11=X#|55=SAP.DE|54=1|60=20260310-14:32:36|38=100|40=2|"
    "44=247.3|58=some text that is longer, and of order #|453=1|448=P|447=D|452=1|10=000|",
    "8=FIX.4.2|9=0|35=8|49=B|56=A|34=#|52=20260310-14:32:36|37=V#|11=X#|17=E#|20=0|150=1|39=1|55=SAP.DE|54=1|38=200|"
    "32=100|31=51.88|151=100|14=100|6=51.88|382=2|375=K|437=60|375=M|437=40|10=000|",
    "8=FIX.4.4|9=0|35=8|49=B|56=A|34=#|52=20260310-14:32:36|37=V#|11=X#|17=E#|150=F|39=1|55=SWAP|541=20270310|54=1|"
    "38=2|32=1|31=4.25|151=1|14=1|6=4.25|555=2|600=NEAR|623=1|539=1|524=P|525=D|538=4|600=FAR|623=1|10=000|",
    "8=FIX.4.4|9=0|35=D|49=A|56=B|34=#|52=20260310-14:32:36|11=X#|54=1|60=20260310-14:32:36|38=100|40=1|10=000|",
    "8=FIX.4.4|9=0|35=D|49=A|56=B|34=#|52=20260310-14:32:36|11=X#|55=S|54=1|60=20260310-14:32:36|38=0|40=1|10=000|",
};

zkstring message(long number) {
  const std::string digits = std::to_string(number);
  std::string text;
  for (const char* next = messages[number % static_cast<long>(std::size(messages))]; *next != '\0'; ++next) {
    if (*next == '#') {
      text += digits;
    } else {
      text += *next == '|' ? '\x01' : *next;
    }
  }
  return zkstring(text.data(), static_cast<unsigned int>(text.size()));
}

long residentKiB() {
  long size = 0, resident = 0;
  std::ifstream("/proc/self/statm") >> size >> resident;
  return resident * (sysconf(_SC_PAGESIZE) / 1024);
}

void install(MessageRouter& router) {
  orders::install("");
  LookupContextFactory::getLookupContext()->rebind(orders::FILES, new ContextOutputProtocol);
  orders::addRows(router);
}
}  // namespace

int main(int count, char** arguments) {
  const long total = count > 1 ? std::atol(arguments[1]) : 5'000'000;
  MessageRouter router;
  install(router);
  const auto start = std::chrono::steady_clock::now();
  long refused = 0, first = 0, most = 0;
  for (long number = 1; number <= total; ++number) {
    StringInputSource source(message(number));
    TransformContext context;
    context.createOutputContext();
    try {
      router.processMessage(source, context);
    } catch (const TransformException&) {
      ++refused;
    }
    if (number % warmUp == 0) most = std::max(most, residentKiB());
    if (number == warmUp) first = most = residentKiB();
    if (number == warmUp || number % std::max(1L, total / 10) == 0)
      std::printf("%10ld messages %8ld KiB\n", number, residentKiB());
  }
  const std::chrono::duration<double> seconds = std::chrono::steady_clock::now() - start;
  std::printf("%ld refused; %.0f messages a second; the memory grew by %ld KiB\n", refused,
              static_cast<double>(total) / seconds.count(), most - first);
  return most > first + uncertainty ? 1 : 0;
}
