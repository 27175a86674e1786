// Foreign bytes on the whole road of the cartridge's FIX messages. Through the router: whatever is written can be read
// as the message that it was written as. And as each message by itself: parsed, validated and written, where writing
// what was read of it once more gives the same bytes.
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <string_view>

#include "ByteArrayInputSource.h"
#include "ByteArrayOutputDevice.h"
#include "ContextOutputProtocol.h"
#include "Exceptions.h"
#include "IExternalMessage.h"
#include "LookupContextFactory.h"
#include "MessageRouter.h"
#include "TransformContext.h"
#include "orders/Cartridge.h"
#include "orders/Names.h"

using namespace zarvik;

namespace {

const zkstringliteral messageNames[] = {"NewOrderSingle42", "NewOrderSingle44", "ExecutionReport42",
                                        "ExecutionReport44"};
constexpr int messageCount = 4;

SmartPtr<ILookupContext> registry() { return LookupContextFactory::getLookupContext(); }

/// The cartridge with all output in memory, and its messages.
class Cartridge {
 public:
  Cartridge() {
    orders::install("");
    registry()->rebind(orders::FILES, new ContextOutputProtocol);
    orders::addRows(router);
    for (int i = 0; i < messageCount; ++i) messages[i] = registry()->lookupExternalMessage(messageNames[i]);
  }

  MessageRouter router;
  SmartPtr<IExternalMessage> messages[messageCount];
};

Cartridge& cartridge() {
  static Cartridge made;
  return made;
}

void expect(bool holds) {
  if (!holds) std::abort();
}

/// Runs `work`, which may refuse its input with an error that tells why, and no other way.
template <class Work>
void refusable(Work work) {
  try {
    work();
  } catch (const TransformException& error) {
    expect(!error.getMessage().empty() && error.getSeverity() == "fatal");
  }
}

IExternalMessage& messageWrittenBy(const zkstring& outputFormat) {
  for (int i = 0; i < messageCount; ++i) {
    if (outputFormat == messageNames[i] + "Out") return *cartridge().messages[i];
  }
  std::abort();
}

/// The message that reads the bytes, as a look at them tells.
IExternalMessage& messageFor(std::string_view bytes) {
  const bool is44 = bytes.starts_with("8=FIX.4.4");
  const bool isReport = bytes.find("35=8") != std::string_view::npos;
  return *cartridge().messages[(is44 ? 1 : 0) + (isReport ? 2 : 0)];
}

void route(InputSource& source) {
  TransformContext context;
  context.createOutputContext();
  bool passed = false;
  refusable([&] {
    cartridge().router.processMessage(source, context);
    passed = true;
  });
  const auto& devices = context.getOutputContext()->getOutputDevices();
  expect(!passed || !devices.empty());
  for (ByteArrayOutputDevice* const device : devices) {
    const zkstring format = device->getDeviceInfo().getOutputFormatName();
    if (format == orders::XML_OUT || format == orders::BYTES_OUT) continue;
    int length = 0;
    const char* const bytes = device->getAsBytes(length);
    messageWrittenBy(format).parse(Binary(bytes, static_cast<unsigned int>(length)), context);
  }
}

void deleteAll(const std::vector<ExceptionDataObject*>& errors) {
  for (ExceptionDataObject* const error : errors) SmartPtr<ExceptionDataObject>{error};
}

void readAndWrite(IExternalMessage& message, InputSource& source) {
  TransformContext context;
  refusable([&] {
    const auto parsed = message.parse2(source, context);
    deleteAll(parsed.exceptions);
    refusable([&] { deleteAll(message.validate2(parsed.value, context).exceptions); });
    const Binary written = message.serialize(parsed.value, context);
    expect(message.serialize(message.parse(written, context), context) == written);
  });
}
}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  auto* const exact = new char[size];  // nothing behind it may be read
  if (size != 0) std::memcpy(exact, data, size);
  ByteArrayInputSource source(exact, static_cast<int>(size));
  route(source);
  readAndWrite(messageFor({exact, size}), source);
  return 0;
}
