#include "Options.h"

namespace route {

const char usage[] = R"(usage: route [--reject FILE] [--quiet] [--] [FILE...]

Hands each FIX message of the files to the first routing row that takes it. A file holds one message a line, with SOH
or '|' between the fields; empty lines are skipped. Without a file, or for '-', it reads standard input.

  --reject FILE  append each message that is not processed to FILE, under lines starting with '#' that tell where it
                 came from and why it was refused; default: route.rejects in the working directory.
                 The messages alone: grep -av '^#' FILE
  --quiet        print the summary only
  --help         print this text and the rows

The exit status is 0 when every message was either processed or rejected, 1 when an input cannot be read or an output
not be written, 2 for wrong arguments.
)";

Options readOptions(int count, char** arguments) {
  Options options;
  bool onlyFiles = false;
  for (int i = 1; i < count; ++i) {
    const std::string word = arguments[i];
    if (onlyFiles || word == "-" || !word.starts_with("-")) {
      options.inputs.push_back(word);
    } else if (word == "--") {
      onlyFiles = true;
    } else if (word == "--quiet") {
      options.quiet = true;
    } else if (word == "--help") {
      options.help = true;
    } else if (word == "--reject") {
      if (++i == count) throw UsageError{"--reject needs a file name"};
      options.rejectFile = arguments[i];
    } else {
      throw UsageError{"unknown option " + word};
    }
  }
  if (options.inputs.empty()) options.inputs.emplace_back("-");
  return options;
}

}  // namespace route
