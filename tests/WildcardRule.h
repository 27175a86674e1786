#pragma once

#include <string>
#include <tuple>
#include <utility>
#include <vector>

/// The rule of wildcard patterns as tokens and back-track points: slow, and plain to follow.
class WildcardRule {
 public:
  explicit WildcardRule(const std::string& pattern) {
    std::string literal;
    for (const char c : pattern) {
      if (c != '*' && c != '?') {
        literal += c;
        continue;
      }
      flush(literal);
      if (c == '?' || tokens.empty() || tokens.back() != "*") tokens.emplace_back(1, c);
    }
    flush(literal);
    if (pattern.empty()) tokens.emplace_back();
  }

  bool accepts(const std::string& name) const {
    std::vector<std::pair<std::size_t, std::size_t>> backTracks;
    std::size_t token = 0;
    std::size_t text = 0;
    bool anyChars = false;
    for (;;) {
      for (; token < tokens.size(); ++token) {
        const std::string& wanted = tokens[token];
        if (wanted == "?") {
          ++text;
          anyChars = false;
        } else if (wanted == "*") {
          anyChars = true;
          if (token + 1 == tokens.size()) text = name.size();
        } else {
          const std::size_t found = name.find(wanted, text);
          if (anyChars ? found == std::string::npos : found != 0) break;
          if (anyChars) {
            const std::size_t repeat = name.find(wanted, found + 1);
            if (repeat != std::string::npos) backTracks.emplace_back(token, repeat);
          }
          text = found + wanted.size();
          anyChars = false;
        }
      }
      if (token == tokens.size() && text == name.size()) return true;
      if (backTracks.empty()) return false;
      std::tie(token, text) = backTracks.back();
      backTracks.pop_back();
      anyChars = true;
    }
  }

 private:
  void flush(std::string& literal) {
    if (!literal.empty()) tokens.push_back(std::exchange(literal, {}));
  }

  std::vector<std::string> tokens;
};
