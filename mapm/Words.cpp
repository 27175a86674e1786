#include "Words.h"

namespace zarvik::mapm {

int compareWords(const Word* a, const Word* b, int n) {
  while (n-- > 0) {
    if (a[n] != b[n]) return a[n] < b[n] ? -1 : 1;
  }
  return 0;
}

Word addWords(Word* a, int na, const Word* b, int nb) {
  Word carry = 0;
  for (int i = 0; i < na && (i < nb || carry != 0); ++i) {
    const Word sum = a[i] + (i < nb ? b[i] : 0) + carry;
    carry = sum >= base ? 1 : 0;
    a[i] = carry != 0 ? sum - base : sum;
  }
  return carry;
}

Word subtractWords(Word* a, int na, const Word* b, int nb) {
  Word borrow = 0;
  for (int i = 0; i < na && (i < nb || borrow != 0); ++i) {
    const Word take = (i < nb ? b[i] : 0) + borrow;
    borrow = a[i] < take ? 1 : 0;
    a[i] = borrow != 0 ? a[i] + base - take : a[i] - take;
  }
  return borrow;
}

}  // namespace zarvik::mapm
