#include "Rows.h"

#include <algorithm>
#include <cstdio>
#include <string>

#include "LookupContextFactory.h"
#include "MessageRouter.h"
#include "ObjectFactory.h"
#include "PlainFormat.h"
#include "TransformContext.h"

using namespace zarvik;

namespace route {
namespace {

/// What a row asks for and where it sends; an empty version, type or field name asks for nothing. The input format of
/// a message has the message's name with "In" behind it.
struct Row {
  const char *name, *version, *type, *headerField, *headerValue, *message, *outputFormat, *device;
};

// The order decides: the special rows of a desk stand before the general rows of its type. What the cartridge does not
// know is passed on as it is, by the input format "PlainIn". The row "news" has no input format and the one of the row
// "allocations" is not bound, so that one can see what becomes of such messages.
constexpr Row rows[] = {
    {"orders of the block desk", "4.2", "D", "TargetSubID", "BLOCK", "NewOrderSingle42", "NewOrderSingle44Out",
     "block.fix"},
    {"orders of the block desk", "4.4", "D", "TargetSubID", "BLOCK", "NewOrderSingle44", "NewOrderSingle42Out",
     "block.fix"},
    {"orders 4.2", "4.2", "D", "", "", "NewOrderSingle42", "NewOrderSingle44Out", "orders.fix"},
    {"orders 4.4", "4.4", "D", "", "", "NewOrderSingle44", "NewOrderSingle42Out", "orders.fix"},
    {"executions 4.2", "4.2", "8", "", "", "ExecutionReport42", "ExecutionReport44Out", "executions.fix"},
    {"executions 4.4", "4.4", "8", "", "", "ExecutionReport44", "ExecutionReport42Out", "executions.fix"},
    {"trading over FIXT", ".1.1", "D", "", "", "Plain", "", "fixt.fix"},
    {"trading over FIXT", ".1.1", "8", "", "", "Plain", "", "fixt.fix"},
    {"cancels and changes", "", "F", "", "", "Plain", "", "changes.fix"},
    {"cancels and changes", "", "G", "", "", "Plain", "", "changes.fix"},
    {"market data", "", "V", "", "", "Plain", "", "marketdata.fix"},
    {"market data", "", "W", "", "", "Plain", "", "marketdata.fix"},
    {"market data", "", "X", "", "", "Plain", "", "marketdata.fix"},
    {"session", "", "A", "", "", "Plain", "", "session.fix"},
    {"session", "", "0", "", "", "Plain", "", "session.fix"},
    {"session", "", "1", "", "", "Plain", "", "session.fix"},
    {"session", "", "2", "", "", "Plain", "", "session.fix"},
    {"session", "", "3", "", "", "Plain", "", "session.fix"},
    {"session", "", "4", "", "", "Plain", "", "session.fix"},
    {"session", "", "5", "", "", "Plain", "", "session.fix"},
    {"news", "", "B", "", "", "", "", ""},
    {"allocations", "", "J", "", "", "Allocation", "", ""},
};

std::string inputFormatOf(const Row& row) { return *row.message != '\0' ? row.message + std::string("In") : ""; }

MessageConfiguration* configurationOf(const Row& row) {
  auto* const configuration = new MessageConfiguration;
  configuration->setMessageFormat(zkstringliteral("FIX"));
  configuration->setMessageVersion(row.version);
  configuration->setMessageType(row.type);
  if (*row.headerField != '\0') configuration->setProperty(row.headerField, row.headerValue);
  const auto set = [&](const zkstring& name, const zkstring& value) {
    if (!value.empty()) configuration->setContextProperty(name, value);
  };
  set(ROW_PROPERTY, row.name);
  set(MESSAGE_PROPERTY, row.message);
  set(TransformContext::INPUT_FORMAT_PROPERTY, inputFormatOf(row).c_str());
  set(TransformContext::OUTPUT_FORMAT_PROPERTY, row.outputFormat);
  set(TransformContext::OUTPUT_DEVICE_PROPERTY, row.device);
  return configuration;
}
}  // namespace

void addRows(MessageRouter& router) {
  LookupContextFactory::getLookupContext()->rebind("PlainIn", new GenericObjectFactory<PlainFormat>);
  for (const Row& row : rows) router.addMessageConfiguration(configurationOf(row));
}

std::vector<const char*> devices() {
  std::vector<const char*> names;
  for (const Row& row : rows) {
    const auto isSame = [&](const char* name) { return std::string(name) == row.device; };
    if (*row.device != '\0' && std::none_of(names.begin(), names.end(), isSame)) names.push_back(row.device);
  }
  return names;
}

void printRows() {
  constexpr char line[] = "  %-26s%-9s%-6s%-20s%-22s%s\n";
  std::printf(line, "row", "version", "type", "further field", "input format", "output device");
  for (const Row& row : rows) {
    const std::string further = *row.headerField != '\0' ? row.headerField + std::string("=") + row.headerValue : "";
    std::printf(line, row.name, *row.version != '\0' ? row.version : "any", row.type, further.c_str(),
                *row.message != '\0' ? inputFormatOf(row).c_str() : "(none)", row.device);
  }
}

}  // namespace route
