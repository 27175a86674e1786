// Strings against the standard library's: copies and slices, searches, growing buffers.
#include <cstring>
#include <string>
#include <string_view>

#include "support/Subject.h"
#include "zkstring.h"
#include "zkstringbuffer.h"

using zarvik::zkstring;
using zarvik::zkstringbuffer;
using zarvik::zkstringliteral;

namespace {

/// Hides from the optimiser what a value is.
template <class T>
T& opaque(T& value) {
  benchmark::DoNotOptimize(value);
  return value;
}

/// As a getter gives a constant out, by value.
template <class Text>
[[gnu::noinline]] Text given(const Text& text) {
  return text;
}

/// As an operation takes a constant, by value.
template <class Text>
[[gnu::noinline]] std::size_t taken(Text text) {
  return opaque(text).size();
}

/// The least that a pointer, a length and a counted block can cost: three words moved, and a look at the block when
/// the value comes and when it goes.
struct ThreeWords {
  constexpr ThreeWords(const char* text, unsigned int length) : pointer(text), count(length) {}
  ThreeWords(const ThreeWords& other) : pointer(other.pointer), count(other.count), block(other.block) {
    if (block != nullptr) ++*block;
  }
  ~ThreeWords() {
    if (block != nullptr) --*block;
  }
  ThreeWords& operator=(const ThreeWords&) = delete;

  const char* pointer;
  unsigned int count;
  int* block = nullptr;
};

void copies() {
  static std::string standard(100, 'x');
  static zkstring text(100, 'x');
  static zkstringliteral literal("a constant of the interface");
  static std::string_view view("a constant of the interface");
  static ThreeWords words("a constant of the interface", 27);
  measure("copy of 100 bytes", ours, [] { return zkstring(opaque(text)); });
  measure("copy of 100 bytes", "std::string", [] { return std::string(opaque(standard)); });
  measure("slice of 60 in 100 bytes", ours, [] { return opaque(text).substr(20, 60); });
  measure("slice of 60 in 100 bytes", "std::string", [] { return opaque(standard).substr(20, 60); });
  measure("copy of a literal", ours, [] { return zkstring(opaque(literal)); });
  measure("copy of a literal", "std::string_view", [] { return std::string_view(opaque(view)); });
  measure("copy of a literal", "three words", [] { return ThreeWords(opaque(words)); });
  measure("literal from a getter", ours, [] { return given<zkstring>(opaque(literal)); });
  measure("literal from a getter", "std::string_view", [] { return given(opaque(view)); });
  measure("literal as an argument", ours, [] { return taken<zkstring>(opaque(literal)); });
  measure("literal as an argument", "std::string_view", [] { return taken(opaque(view)); });
}

/// 1 KB in which `filler` stands everywhere but at the end, where `pattern` stands.
std::string haystack(char filler, const char* pattern) {
  std::string text(1024 - std::strlen(pattern), filler);
  return text + pattern;
}

void findsIn(const std::string& subject, char filler, const char* pattern) {
  static std::vector<std::string> texts;  // alive as long as the benchmarks are
  texts.reserve(16);
  const std::string& text = texts.emplace_back(haystack(filler, pattern));
  const zkstring mine(text.data(), static_cast<unsigned int>(text.size()));
  const zkstring wanted(pattern);
  const std::string_view view(text);
  measure(subject, ours, [mine, wanted]() mutable { return opaque(mine).find(opaque(wanted)); });
  measure(subject, "std::string_view",
          [view, pattern = std::string_view(pattern)]() mutable { return opaque(view).find(opaque(pattern)); });
  measure(subject, "memmem", [view, pattern = std::string_view(pattern)]() mutable {
    return memmem(opaque(view).data(), view.size(), opaque(pattern).data(), pattern.size());
  });
}

void finds() {
  findsIn("find 5 bytes in 1 KB, first byte rare", '.', "abcde");
  findsIn("find 5 bytes in 1 KB, first byte frequent", 'a', "abcde");
  static const std::string text = haystack('.', "x");
  static std::string_view view(text);
  static zkstring mine(text.c_str());
  measure("find a byte in 1 KB", ours, [] { return opaque(mine).find('x'); });
  measure("find a byte in 1 KB", "std::string_view", [] { return opaque(view).find('x'); });
}

void appends() {
  constexpr int pieces = 1000;
  static const char piece[] = "0123456789abcdef";
  measure("append 1000 bytes one by one", ours, [] {
    zkstringbuffer buffer;
    for (int i = 0; i < pieces; ++i) buffer.append(static_cast<char>(i));
    return buffer;
  });
  measure("append 1000 bytes one by one", "std::string", [] {
    std::string buffer;
    for (int i = 0; i < pieces; ++i) buffer.push_back(static_cast<char>(i));
    return buffer;
  });
  measure("append 16 bytes 1000 times", ours, [] {
    zkstringbuffer buffer;
    for (int i = 0; i < pieces; ++i) buffer.append(piece, 16);
    return buffer;
  });
  measure("append 16 bytes 1000 times", "std::string", [] {
    std::string buffer;
    for (int i = 0; i < pieces; ++i) buffer.append(piece, 16);
    return buffer;
  });
}

const bool registered = (copies(), finds(), appends(), true);
}  // namespace
