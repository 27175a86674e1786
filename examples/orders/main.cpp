// The cartridge at work: every FIX message of a file goes its whole road, and what comes out of it is printed.
#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <string>

#include "ByteArrayOutputDevice.h"
#include "Exceptions.h"
#include "IOutputContext.h"
#include "MessageRouter.h"
#include "StringInputSource.h"
#include "TransformContext.h"
#include "orders/Cartridge.h"

using namespace zarvik;

namespace {

constexpr char SOH = 1;
constexpr char shown = '|';  ///< stands for SOH in the file and in what is printed

void printOutput(TransformContext& context) {
  for (ByteArrayOutputDevice* const device : context.getOutputContext()->getOutputDevices()) {
    std::string text = device->getAsString();
    std::replace(text.begin(), text.end(), SOH, shown);
    std::printf("   %s: %s\n", device->getDeviceInfo().getOutputFormatName().c_str(), text.c_str());
  }
}

void process(const MessageRouter& router, std::string message, const zkstring& origin) {
  std::printf("%s: %s\n", origin.c_str(), message.c_str());
  std::replace(message.begin(), message.end(), shown, SOH);
  StringInputSource source(zkstring(message.data(), static_cast<unsigned int>(message.size())));
  TransformContext context;
  context.createOutputContext();
  context.setProperty(TransformContext::INPUT_SOURCE_PROPERTY, origin);
  try {
    router.processMessage(source, context);
    printOutput(context);
  } catch (TransformException& error) {
    std::printf("   refused: %s\n", error.getMessage().c_str());
  }
}

int fail(const char* what, const char* name) {
  std::fflush(stdout);
  std::fprintf(stderr, "orders: cannot %s '%s'\n", what, name);
  return 1;
}

int processAll(const char* name) {
  std::ifstream file(name);
  if (!file) return fail("read", name);
  MessageRouter router;
  orders::addRows(router);
  int number = 0;
  for (std::string line; std::getline(file, line);) {
    process(router, line, "message " + zkstring(std::to_string(++number).c_str()));
  }
  if (file.bad()) return fail("read", name);
  return std::fflush(stdout) == 0 && std::ferror(stdout) == 0 ? 0 : fail("write", "standard output");
}
}  // namespace

int main(int count, char** arguments) {
  if (count != 3) {
    std::fprintf(stderr, "usage: orders MESSAGES FOLDER\nFOLDER takes the files of large orders and of executions\n");
    return 2;
  }
  if (!std::filesystem::is_directory(arguments[2])) return fail("write to the folder", arguments[2]);
  orders::install(arguments[2]);
  return processAll(arguments[1]);
}
