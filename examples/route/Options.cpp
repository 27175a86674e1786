#include "Options.h"

namespace route {

const char usage[] = R"(usage: route [--out FOLDER] [--reject FILE] [--collect] [--show] [--quiet] [--] [FILE...]

Hands each FIX message of the files to the first routing row that takes it. Orders and executions of FIX 4.2 and 4.4 are
parsed, normalised, checked and written in the other version; other messages are passed on as they are. A file holds one
message a line, with SOH or '|' between the fields; empty lines are skipped. Without a file, or for '-', it reads
standard input.

  --out FOLDER   write one file for each output device to FOLDER, made if it is not there: an output a line. Large orders
                 (as XML) and executions (in a compact form) are also filed there, each in a file of its own;
                 default: route.out in the working directory
  --reject FILE  append each message that is not processed to FILE, under lines starting with '#' that tell where it
                 came from and, as XML, why it was refused; default: route.rejects in the working directory.
                 The messages alone: grep -av '^#' FILE
  --collect      check each message before it is processed, and tell all of its errors, not only the first
  --show         print each message, its normalised form and what is written of it; no output goes to files
  --quiet        print the summary only
  --help         print this text and the rows

The exit status is 0 when every message was either processed or rejected, 1 when an input cannot be read or an output
not be written, 2 for wrong arguments.
)";

Options readOptions(int count, char** arguments) {
  Options options;
  struct Switch {
    const char* word;
    bool Options::*value;
  };
  static constexpr Switch switches[] = {{"--collect", &Options::collect},
                                        {"--show", &Options::show},
                                        {"--quiet", &Options::quiet},
                                        {"--help", &Options::help}};
  struct Setting {
    const char* word;
    std::string Options::*value;
    const char* what;
  };
  static constexpr Setting settings[] = {{"--out", &Options::outputFolder, "folder"},
                                         {"--reject", &Options::rejectFile, "file"}};
  bool onlyFiles = false;
  const auto take = [&](const std::string& word, int& i) {
    if (onlyFiles || word == "-" || !word.starts_with("-")) return options.inputs.push_back(word);
    if (word == "--") {
      onlyFiles = true;
      return;
    }
    for (const Switch& known : switches) {
      if (word == known.word) {
        options.*known.value = true;
        return;
      }
    }
    for (const Setting& known : settings) {
      if (word != known.word) continue;
      if (++i == count || *arguments[i] == '\0') throw UsageError{word + " needs the name of a " + known.what};
      options.*known.value = arguments[i];
      return;
    }
    throw UsageError{"unknown option " + word};
  };
  for (int i = 1; i < count; ++i) take(arguments[i], i);
  if (options.inputs.empty()) options.inputs.emplace_back("-");
  return options;
}

}  // namespace route
