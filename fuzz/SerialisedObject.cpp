// Foreign bytes read as an order, and as a record without a class; what can be read is written and read to the same.
// Numbers that are none are warned of: run it with -close_fd_mask=2, and with -malloc_limit_mb=1 to see that no count
// in a small input makes the reader ask for much.
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <memory>

#include "DataObjectIO.h"
#include "Exceptions.h"
#include "GenericDataObject.h"
#include "orders/Order.h"

using namespace zarvik;

namespace {

bool parses(DataObject* record, const char* bytes, std::size_t size) {
  const std::unique_ptr<char[]> exact(new char[size]);  // nothing behind it may be read
  if (size != 0) std::memcpy(exact.get(), bytes, size);
  try {
    DataObjectIO::parse(record, exact.get(), static_cast<int>(size));
    return true;
  } catch (const Exception& error) {
    if (error.getMessage().empty()) std::abort();
    return false;
  }
}

/// Whether the numbers as texts are of a length worth writing: a few digits with a great exponent are not.
bool isWritable(const orders::Order& order) {
  constexpr long long most = 10'000;
  return (order.isNull(orders::Order::ACCOUNT) || order.getAccount().fixPtLength(-1) < most) &&
         (order.isNull(orders::Order::NOTIONAL) || order.getNotional().fixPtLength(-1) < most);
}

void roundTrip(const orders::Order& order) {
  const SmartPtr<orders::Order> copy(new orders::Order);
  const Binary bytes = DataObjectIO::serialize(&order);
  if (!parses(copy.get(), bytes.data(), bytes.length()) || DataObjectIO::serialize(copy.get()) != bytes) std::abort();
}
}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const char* const bytes = reinterpret_cast<const char*>(data);
  const SmartPtr<orders::Order> order(new orders::Order);
  const SmartPtr<DataObject> generic(new GenericDataObject(orders::Order::metaInfo(), false));
  parses(generic.get(), bytes, size);
  if (parses(order.get(), bytes, size) && isWritable(*order)) roundTrip(*order);
  return 0;
}
