// Errors end to end: what a thrown, stamped and caught one costs, and how much of that is the language's own.
#include <array>
#include <cstdio>
#include <exception>
#include <map>
#include <string>

#include "Exceptions.h"
#include "FromCatalogue.h"
#include "Stamped.h"
#include "ThrowFrom.h"
#include "support/Subject.h"

using zarvik::fromCatalogue;
using zarvik::stamped;
using zarvik::throwFrom;
using zarvik::TransformException;
using zarvik::zkstringliteral;

namespace {

constexpr int depth = 8;

/// As large as ours, and no more than the language asks for.
class PlainException : public std::exception {
 public:
  int line = 0;
  std::array<char, sizeof(TransformException) - sizeof(std::exception) - sizeof(int)> rest{};
};

/// Calls `fail` below `frames` calls, each with something to clean up.
[[gnu::noinline]] int below(int frames, int (*fail)()) {
  const std::string local(1, static_cast<char>(frames));
  benchmark::DoNotOptimize(local.data());
  return frames == 0 ? fail() : below(frames - 1, fail) + 1;
}

[[gnu::noinline]] int failOurs() { throwFrom("bench/errors", TransformException(zkstringliteral("Unexpected error"))); }
[[gnu::noinline]] int failPlain() { throw PlainException(); }

template <class E, class Action>
int lineOf(Action action) {
  try {
    action();
    return 0;
  } catch (const E&) {
    return 1;
  }
}

void throwing() {
  const char* const subject = "throw and catch through 8 frames";
  measure(subject, ours, [] { return lineOf<TransformException>([] { return below(depth, failOurs); }); });
  measure(subject, "a bare exception as large",
          [] { return lineOf<PlainException>([] { return below(depth, failPlain); }); });
}

void stamping() {
  const char* const subject = "the same, stamped on the way by three stages";
  measure(subject, ours, [] {
    return lineOf<TransformException>([] {
      stamped([](TransformException& error) { error.setSeverity(zkstringliteral("fatal")); },
              [] {
                stamped([](TransformException& error) { error.fillPhase(TransformException::getINPUT_PHASE()); },
                        [] {
                          stamped([](TransformException& error) { error.setLine(12); }, [] { below(depth, failOurs); });
                        });
              });
    });
  });
  const auto through = [](auto work) {
    try {
      work();
    } catch (PlainException& error) {
      error.line = 12;
      throw;
    }
  };
  measure(subject, "a bare exception as large", [through] {
    return lineOf<PlainException>(
        [through] { through([through] { through([through] { through([] { below(depth, failPlain); }); }); }); });
  });
}

void building() {
  const char* const subject = "an error with a catalogue text of two arguments";
  measure(subject, ours, [] {
    return fromCatalogue<zarvik::FieldNotFoundException>("SRT161", {5, 7}).getErrorCode().length();
  });
  static const std::map<std::string, const char*> texts = {
      {"SRT161.message", "Section index out of bound, size = '%d', index accessed = '%d'."}, {"SRT161.code", "SRT30"}};
  measure(subject, "snprintf and std::map", [] {
    char text[100];
    std::snprintf(text, sizeof text, texts.find("SRT161.message")->second, 5, 7);
    return std::string(text).length() + std::string(texts.find("SRT161.code")->second).length();
  });
}

const bool registered = (throwing(), stamping(), building(), true);
}  // namespace
