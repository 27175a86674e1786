#include "Host.h"

#include <algorithm>
#include <cerrno>
#include <climits>
#include <cstdio>
#include <istream>
#include <stdexcept>
#include <system_error>

#include "Exceptions.h"
#include "Frame.h"
#include "Rows.h"
#include "Show.h"
#include "StringInputSource.h"
#include "TransformContext.h"

using namespace zarvik;

namespace route {
namespace {

constexpr const char* unrecognised = "unrecognised";
constexpr const char* unhandled = "unhandled";
constexpr const char* failed = "failed";

MessageIdentificationService* identificationService() {
  auto* const service = new MessageIdentificationService;
  service->registerMessageIdentifer(new FrameCheckingIdentifier);
  return service;
}

/// The message in a line, without its line end. In a line without any SOH, `|` stands for it.
zkstring messageOf(std::string_view line) {
  if (line.ends_with('\r')) line.remove_suffix(1);
  if (line.size() > INT_MAX) throw std::length_error("The line is longer than 2 GiB");
  std::string text(line);
  if (text.find('\x01') == std::string::npos) std::replace(text.begin(), text.end(), '|', '\x01');
  return zkstring(text.data(), static_cast<unsigned int>(text.size()));
}

std::string textOf(const zkstring& text) { return std::string(text.data(), text.length()); }

/// `text` on one line that is not too long to read; some errors quote a whole record.
std::string oneLine(const zkstring& text) {
  constexpr std::size_t longest = 160;
  std::string line;
  for (const char c : textOf(text)) {
    const bool blank = c == '\n' || c == '\t' || c == ' ';
    if (!blank) line += c;
    if (blank && !line.empty() && line.back() != ' ') line += ' ';
  }
  if (line.ends_with(' ')) line.pop_back();
  return line.size() <= longest ? line : line.substr(0, longest) + "...";
}

Errors only(TransformException* error) { return {SmartPtr<ExceptionDataObject>(error)}; }
}  // namespace

Host::Host(const Options& options)
    : options(options),
      rejects(options.rejectFile),
      progress(options.quiet),
      outputs(options.show ? "" : options.outputFolder),
      router(identificationService()),
      collector(router) {
  addRows(router);
}

void Host::takeAll(std::istream& input, const std::string& name) {
  long number = 0;
  errno = 0;
  for (std::string line; std::getline(input, line);) {
    ++number;
    if (line.find_first_not_of('\r') == std::string::npos) continue;
    take(line, name + ":" + std::to_string(number));
    progress.show(messages);
  }
  if (input.bad()) throw std::system_error(errno, std::generic_category(), "cannot read '" + name + "'");
}

void Host::take(const std::string& line, const std::string& origin) {
  ++messages;
  if (options.show) std::printf("\n%s:\n%s\n", origin.c_str(), readable(line).c_str());
  try {
    StringInputSource source(messageOf(line));
    TransformContext context;
    context.setProperty(TransformContext::INPUT_SOURCE_PROPERTY, origin.c_str());
    if (options.show) context.createOutputContext();
    if (options.collect) {
      const Errors errors = collector.errorsOf(source, context);
      if (!errors.empty()) return reject(failed, errors, line, origin);
    }
    router.processMessage(source, context);
    const std::string row = textOf(context.getProperty(ROW_PROPERTY));
    ++routed[row];
    if (options.show) return showOutputs(context);
    if (!options.quiet) std::printf("%s: %s\n", origin.c_str(), row.c_str());
  } catch (const UnrecognizedMessageException& error) {
    reject(unrecognised, only(new TransformException(error)), line, origin);
  } catch (const UnhandledMessageException& error) {
    reject(unhandled, only(new TransformException(error)), line, origin);
  } catch (const TransformException& error) {
    reject(failed, only(new TransformException(error)), line, origin);
  } catch (const std::length_error& error) {
    reject(failed, only(new TransformException(error.what())), line, origin);
  }
}

void Host::reject(const char* what, const Errors& errors, const std::string& line, const std::string& origin) {
  ++rejected[what];
  std::string xml;
  for (const auto& error : errors) xml += textOf(error->toXMLString());
  rejects.add(origin + ", " + what, xml, line);
  if (options.quiet) return;
  if (options.show) return static_cast<void>(std::printf("Rejected, %s:\n%s\n", what, readable(xml).c_str()));
  std::printf("%s: %s, %s", origin.c_str(), what, oneLine(errors.front()->getMessage()).c_str());
  if (errors.size() > 1) std::printf(" (and %zu more)", errors.size() - 1);
  std::printf("\n");
}

void Host::printSummary() {
  progress.clear();
  const std::map<std::string, long> written = outputs.finish();
  const auto print = [](const char* indent, const std::string& what, long count) {
    std::printf("%s%-*s%8ld\n", indent, indent[0] == '\0' ? 32 : 30, what.c_str(), count);
  };
  const auto printAll = [&](const char* title, const std::map<std::string, long>& counts) {
    long total = 0;
    for (const auto& [what, count] : counts) total += count;
    print("", title, total);
    for (const auto& [what, count] : counts) print("  ", what, count);
    return total;
  };
  const std::chrono::duration<double> seconds = Clock::now() - start;
  if (options.show) std::printf("\n");
  print("", "messages", messages);
  if (!options.show)
    print("", "messages per second", static_cast<long>(static_cast<double>(messages) / seconds.count()));
  printAll("routed", routed);
  const long refused = printAll("rejected", rejected);
  if (!options.show) printAll("written", written);
  if (refused != 0) std::printf("%ld rejected messages appended to %s\n", refused, options.rejectFile.c_str());
}

}  // namespace route
