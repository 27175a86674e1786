// A host: routes the FIX messages of some files, and keeps what cannot be processed.
#include <cerrno>
#include <cstdio>
#include <exception>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <system_error>

#include "Host.h"
#include "Options.h"
#include "Rows.h"

namespace {

using route::Options;

[[noreturn]] void failOn(const std::string& file, int error) {
  throw std::system_error(error, std::generic_category(), "cannot read '" + file + "'");
}

/// Whether both are one and the same file on disk, so that reading one would never end while the other grows.
bool isSameFile(const std::string& input, const std::string& rejectFile) {
  std::error_code notThere;
  return std::filesystem::is_regular_file(input, notThere) && std::filesystem::equivalent(input, rejectFile, notThere);
}

/// Before anything is processed: an input that is not there, or that is the reject file itself.
void checkInputs(const Options& options) {
  for (const std::string& input : options.inputs) {
    const std::string path = input == "-" ? "/dev/stdin" : input;
    if (isSameFile(path, options.rejectFile)) {
      throw std::runtime_error("'" + options.rejectFile + "' is both an input and the reject file; use --reject");
    }
    if (input == "-") continue;
    if (!std::filesystem::exists(input)) failOn(input, ENOENT);
    if (std::filesystem::is_directory(input)) failOn(input, EISDIR);
  }
}

void takeInput(route::Host& host, const std::string& name) {
  if (name == "-") return host.takeAll(std::cin, "(standard input)");
  errno = 0;
  std::ifstream file(name, std::ios::binary);
  if (!file) failOn(name, errno);
  host.takeAll(file, std::filesystem::path(name).filename().string());
}

void run(const Options& options) {
  checkInputs(options);
  route::Host host(options);
  for (const std::string& input : options.inputs) takeInput(host, input);
  host.printSummary();
}
}  // namespace

int main(int count, char** arguments) {
  std::ios::sync_with_stdio(false);
  try {
    const Options options = route::readOptions(count, arguments);
    if (options.help) {
      std::printf("%s\nThe rows, tried in this order, all of format FIX:\n", route::usage);
      route::printRows();
    } else {
      run(options);
    }
    if (std::fflush(stdout) != 0 || std::ferror(stdout) != 0)
      throw std::system_error(errno, std::generic_category(), "cannot write the output");
  } catch (const route::UsageError& error) {
    std::fprintf(stderr, "route: %s\n%s", error.text.c_str(), route::usage);
    return 2;
  } catch (const std::exception& error) {
    std::fflush(stdout);
    std::fprintf(stderr, "route: %s\n", error.what());
    return 1;
  }
}
