#include "Rows.h"

#include <cstdio>

#include "CountingFormat.h"
#include "LookupContextFactory.h"
#include "MessageRouter.h"
#include "ObjectFactory.h"
#include "TransformContext.h"

using namespace zarvik;

namespace route {

constinit const zkstringliteral ROW_PROPERTY("route.row");

namespace {

/// What a row asks for and where it sends; an empty version, type or field name asks for nothing.
struct Row {
  const char* name;
  const char* version;
  const char* type;
  const char* headerField;
  const char* headerValue;
  const char* inputFormat;
};

// The order decides: the special row of a desk stands before the general rows of its type. "orders as logged on" asks
// for the field to be missing: the application version is then that of the logon. The row "news" has no input format
// and the format of the row "allocations" is not bound, so that one can see what becomes of such messages.
constexpr Row rows[] = {
    {"orders of the block desk", "", "D", "TargetSubID", "BLOCK", "FixBlockOrders"},
    {"orders 4.0", "FIX.4.0", "D", "", "", "FixOrders"},
    {"orders 4.1", "FIX.4.1", "D", "", "", "FixOrders"},
    {"orders 4.2", "FIX.4.2", "D", "", "", "FixOrders"},
    {"orders 4.3", "FIX.4.3", "D", "", "", "FixOrders"},
    {"orders 4.4", "FIX.4.4", "D", "", "", "FixOrders"},
    {"orders 5.0 SP2", "FIXT.1.1", "D", "ApplVerID", "9", "FixOrders"},
    {"orders as logged on", "FIXT.1.1", "D", "ApplVerID", "", "FixOrders"},
    {"cancels and changes", "", "F", "", "", "FixOrders"},
    {"cancels and changes", "", "G", "", "", "FixOrders"},
    {"executions", "", "8", "", "", "FixExecutions"},
    {"market data", "", "V", "", "", "FixMarketData"},
    {"market data", "", "W", "", "", "FixMarketData"},
    {"market data", "", "X", "", "", "FixMarketData"},
    {"session", "", "A", "", "", "FixSession"},
    {"session", "", "0", "", "", "FixSession"},
    {"session", "", "1", "", "", "FixSession"},
    {"session", "", "2", "", "", "FixSession"},
    {"session", "", "3", "", "", "FixSession"},
    {"session", "", "4", "", "", "FixSession"},
    {"session", "", "5", "", "", "FixSession"},
    {"news", "", "B", "", "", ""},
    {"allocations", "", "J", "", "", "FixAllocations"},
};
constexpr const char* boundFormats[] = {"FixBlockOrders", "FixOrders", "FixExecutions", "FixMarketData", "FixSession"};

MessageConfiguration* configurationOf(const Row& row) {
  auto* const configuration = new MessageConfiguration;
  configuration->setMessageFormat(zkstringliteral("FIX"));
  configuration->setMessageVersion(row.version);
  configuration->setMessageType(row.type);
  if (*row.headerField != '\0') configuration->setProperty(row.headerField, row.headerValue);
  configuration->setContextProperty(ROW_PROPERTY, row.name);
  if (*row.inputFormat != '\0') {
    configuration->setContextProperty(TransformContext::INPUT_FORMAT_PROPERTY, row.inputFormat);
  }
  return configuration;
}
}  // namespace

void addRows(MessageRouter& router) {
  const SmartPtr<ILookupContext> registry = LookupContextFactory::getLookupContext();
  for (const char* name : boundFormats) registry->rebind(name, new GenericObjectFactory<CountingFormat>);
  for (const Row& row : rows) router.addMessageConfiguration(configurationOf(row));
}

void printRows() {
  std::printf("  %-26s%-10s%-6s%-20s%s\n", "row", "version", "type", "further field", "input format");
  for (const Row& row : rows) {
    const std::string further = *row.headerField != '\0' ? row.headerField + std::string("=") + row.headerValue : "";
    std::printf("  %-26s%-10s%-6s%-20s%s\n", row.name, *row.version != '\0' ? row.version : "any", row.type,
                further.c_str(), *row.inputFormat != '\0' ? row.inputFormat : "(none)");
  }
}

}  // namespace route
