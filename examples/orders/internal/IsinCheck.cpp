#include "orders/internal/IsinCheck.h"

using namespace zarvik;

namespace orders {
namespace {

/// What `c` counts in an ISIN: 0 to 9 for digits, 10 to 35 for capital letters, -1 for anything else.
int valueOf(char c) {
  if (c >= '0' && c <= '9') return c - '0';
  if (c >= 'A' && c <= 'Z') return c - 'A' + 10;
  return -1;
}

/// The sum of ISO 6166: letters stand for two digits, and from the right every second digit counts twice, its own
/// digits added. A number is right when the sum ends in 0.
bool isIsin(const zkstring& text) {
  if (text.length() != 12) return false;
  int sum = 0;
  bool twice = false;
  const auto add = [&](int digit) {
    sum += twice ? digit * 2 % 10 + digit * 2 / 10 : digit;
    twice = !twice;
  };
  for (unsigned int i = text.length(); i-- > 0;) {
    const int value = valueOf(text[i]);
    if (value < 0) return false;
    add(value % 10);
    if (value > 9) add(value / 10);
  }
  return sum % 10 == 0;
}
}  // namespace

bool IsinCheck::validate(const zkstring& /*argument*/, const Object* value, DataObject* /*object*/) {
  return value != nullptr && isIsin(value->getString());
}

}  // namespace orders
