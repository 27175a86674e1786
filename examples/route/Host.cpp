#include "Host.h"

#include <cerrno>
#include <cstdio>
#include <istream>
#include <stdexcept>
#include <system_error>

#include "Class.h"
#include "CountingFormat.h"
#include "Exceptions.h"
#include "LineSource.h"
#include "Rows.h"
#include "TransformContext.h"

using namespace zarvik;

namespace route {
namespace {

MessageIdentificationService* serviceOf(MessageIdentifier* identifier) {
  auto* const service = new MessageIdentificationService;
  service->registerMessageIdentifer(identifier);
  return service;
}

std::string textOf(const zkstring& text) { return std::string(text.data(), text.length()); }

/// The class of the error and its text, word for word.
std::string reasonOf(const Exception& error) {
  return textOf(Class(typeid(error)).getName()) + ": " + textOf(error.getMessage());
}
}  // namespace

Host::Host(const std::string& rejectFile, bool quiet)
    : rejects(rejectFile),
      rejectFileName(rejectFile),
      quiet(quiet),
      progress(quiet),
      identifier(new FixIdentifier),
      router(serviceOf(identifier)) {
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
  TransformContext context;
  try {
    LineSource source(std::string_view(line).substr(0, line.ends_with('\r') ? line.size() - 1 : line.size()));
    router.processMessage(source, context);
    const std::string row = textOf(context.getProperty(ROW_PROPERTY));
    ++routed[row];
    if (!quiet) {
      std::printf("%s: %s, %s fields\n", origin.c_str(), row.c_str(),
                  context.getProperty(CountingFormat::FIELDS_PROPERTY).c_str());
    }
  } catch (const UnrecognizedMessageException& error) {
    reject(unrecognised, reasonOf(error) + " (" + identifier->getProblem() + ")", line, origin);
  } catch (const UnhandledMessageException& error) {
    reject(unhandled, reasonOf(error), line, origin);
  } catch (const Exception& error) {
    const zkstring row = context.getProperty(ROW_PROPERTY);
    reject(failed, reasonOf(error) + (row.empty() ? "" : " (row " + textOf(row) + ")"), line, origin);
  } catch (const std::length_error& error) {
    reject(failed, error.what(), line, origin);
  }
}

void Host::reject(long& count, const std::string& reason, const std::string& line, const std::string& origin) {
  ++count;
  rejects.add(origin, reason, line);
  if (!quiet) std::printf("%s: rejected, %s\n", origin.c_str(), reason.substr(0, reason.find('\n')).c_str());
}

void Host::printSummary() {
  progress.clear();
  const auto print = [](const char* indent, const std::string& what, long count) {
    std::printf("%s%-*s%8ld\n", indent, indent[0] == '\0' ? 28 : 26, what.c_str(), count);
  };
  long total = 0;
  for (const auto& [row, count] : routed) total += count;
  print("", "messages", messages);
  print("", "routed", total);
  for (const auto& [row, count] : routed) print("  ", row, count);
  print("", "unrecognised", unrecognised);
  print("", "unhandled", unhandled);
  print("", "failed", failed);
  if (total < messages) std::printf("%ld rejected messages appended to %s\n", messages - total, rejectFileName.c_str());
}

}  // namespace route
