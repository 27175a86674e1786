#include <algorithm>

#include "DigitShift.h"
#include "Lanes.h"
#include "Record.h"

// Addition and subtraction, in base 100 as the digits lie, sixteen bytes at a time.

namespace zarvik::mapm {
namespace {

/// The digits of an operand, with zeros behind them up to whole blocks of sixteen bytes.
struct Digits {
  const unsigned char* data;
  int bytes;
};

Digits plain(const M_APM_struct* a) { return {a->data, byteCount(a)}; }

#ifdef __SSE2__

/// a + b
struct Adder {
  static __m128i raw(__m128i a, __m128i b) { return _mm_add_epi8(a, b); }
  static __m128i carries(__m128i a, __m128i b) { return _mm_cmpgt_epi8(_mm_adds_epi8(a, b), _mm_set1_epi8(99)); }
  static __m128i apply(__m128i raw, __m128i in) { return _mm_sub_epi8(raw, in); }
  static __m128i settle(__m128i sum) { return _mm_min_epu8(sum, _mm_sub_epi8(sum, _mm_set1_epi8(100))); }
  static __m128i missed(__m128i out, __m128i in) { return _mm_add_epi8(out, in); }  // below 0 where 99 became 0
  static bool overflows(int a, int b) { return a + b > 99; }
  static constexpr int step = 1;
  static constexpr int last = 99;
};

/// a - b
struct Subtracter {
  static __m128i raw(__m128i a, __m128i b) { return _mm_sub_epi8(a, b); }
  static __m128i carries(__m128i a, __m128i b) { return _mm_cmpgt_epi8(b, a); }
  static __m128i apply(__m128i raw, __m128i in) { return _mm_add_epi8(raw, in); }
  static __m128i settle(__m128i sum) { return _mm_min_epu8(sum, _mm_add_epi8(sum, _mm_set1_epi8(100))); }
  static __m128i missed(__m128i out, __m128i in) {  // above 127 where 0 became 99
    return _mm_add_epi8(out, _mm_sub_epi8(_mm_set1_epi8(28), in));
  }
  static bool overflows(int a, int b) { return a < b; }
  static constexpr int step = -1;
  static constexpr int last = 0;
};

/// Combines sixteen bytes at a time, from the first to the last. Each byte takes the carry that the bytes behind it, as
/// they stand, give out; where a byte hands a carry on that came to it, which is seldom, the carry is added later.
template <class Operation>
class Chain {
 public:
  explicit Chain(unsigned char* out) : out(out) {}

  /// Bytes i to i + 15; the other two operands are those of one byte on.
  void step(int i, __m128i a, __m128i b, __m128i nextA, __m128i nextB) {
    const int missed = _mm_movemask_epi8(combine(i, a, b, nextA, nextB));
    if (missed != 0) [[unlikely]]
      carryOn(i, missed);
  }
  /// Bytes i to i + 31 of numbers that go on behind them.
  void twoSteps(int i, const unsigned char* a, const unsigned char* b) {
    const __m128i first = combine(i, load(a), load(b), load(a + 1), load(b + 1));
    const __m128i second = combine(i + 16, load(a + 16), load(b + 16), load(a + 17), load(b + 17));
    if (_mm_movemask_epi8(_mm_or_si128(first, second)) != 0) [[unlikely]]
      carryOn(i, _mm_movemask_epi8(first) | _mm_movemask_epi8(second) << 16);
  }
  bool carry() const { return carried; }  ///< beyond the first byte, of those added later

 private:
  /// High bits are set where a carry was missed.
  __m128i combine(int i, __m128i a, __m128i b, __m128i nextA, __m128i nextB) {
    const __m128i in = Operation::carries(nextA, nextB);
    const __m128i sum = Operation::settle(Operation::apply(Operation::raw(a, b), in));
    store(out + i, sum);
    return Operation::missed(sum, in);
  }
  void carryOn(int i, int missed) {
    for (auto bits = static_cast<unsigned int>(missed); bits != 0; bits &= bits - 1) {
      carryInto(i + std::countr_zero(bits) - 1);
    }
  }
  void carryInto(int i) {
    for (; i >= 0 && out[i] == Operation::last; --i) out[i] = 99 - Operation::last;
    if (i < 0) {
      carried = true;
    } else {
      out[i] = static_cast<unsigned char>(out[i] + Operation::step);
    }
  }

  unsigned char* const out;
  bool carried = false;
};

__m128i behindFirst(__m128i bytes) { return _mm_srli_si128(bytes, 1); }

/// out = a op b over the longer one's blocks; the shorter one is followed by zeros. Whether a carry is left.
template <class Operation>
bool combine(unsigned char* out, Digits a, Digits b) {
  const int endOfA = paddedBytes(a.bytes);
  const int endOfB = paddedBytes(b.bytes);
  const int last = std::min(endOfA, endOfB) - 16;
  Chain<Operation> chain(out);
  int i = 0;
  for (; i < last - 16; i += 32) chain.twoSteps(i, a.data + i, b.data + i);
  if (i < last) {
    chain.step(i, load(a.data + i), load(b.data + i), load(a.data + i + 1), load(b.data + i + 1));
    i += 16;
  }
  const __m128i zero = _mm_setzero_si128();
  __m128i lastA = load(a.data + i);
  for (; i < endOfB - 16; i += 16, lastA = zero) {
    chain.step(i, lastA, load(b.data + i), behindFirst(lastA), load(b.data + i + 1));
  }
  const __m128i lastB = load(b.data + i);
  chain.step(i, lastA, lastB, behindFirst(lastA), behindFirst(lastB));
  if (endOfA > i + 16) std::memcpy(out + i + 16, a.data + i + 16, static_cast<std::size_t>(endOfA - i - 16));
  return chain.carry() || Operation::overflows(a.data[0], b.data[0]);
}

#else

/// Eight bytes as one number, the first highest.
std::uint64_t loadHigh(const unsigned char* bytes) { return __builtin_bswap64(loadLow(bytes)); }

// Within a word a byte that does not carry out of the biased sum, or that borrows, ends up with its high bit set and
// 156 too high.
constexpr std::uint64_t bias = 0x9C9C9C9C9C9C9C9C;
struct Adder {
  static std::uint64_t combine(std::uint64_t a, std::uint64_t b, bool carry) { return a + bias + (b + carry); }
  static bool carries(std::uint64_t raw) { return raw >> 63 == 0; }
};
struct Subtracter {
  static std::uint64_t combine(std::uint64_t a, std::uint64_t b, bool carry) { return a - b - carry; }
  static bool carries(std::uint64_t raw) { return raw >> 63 != 0; }
};

/// Combines blocks of sixteen bytes from the last to the first.
template <class Operation>
class Chain {
 public:
  void step(unsigned char* out, const unsigned char* a, const unsigned char* b) {
    word(out + 8, loadHigh(a + 8), loadHigh(b + 8));
    word(out, loadHigh(a), loadHigh(b));
  }
  bool carry() const { return behind; }

 private:
  void word(unsigned char* out, std::uint64_t a, std::uint64_t b) {
    const std::uint64_t raw = Operation::combine(a, b, behind);
    behind = Operation::carries(raw);
    storeLow(out, __builtin_bswap64(raw - (raw >> 7 & 0x0101010101010101) * 156));
  }

  bool behind = false;
};

/// out = a op b over the longer one's blocks; the shorter one is followed by zeros. Whether a carry is left.
template <class Operation>
bool combine(unsigned char* out, Digits a, Digits b) {
  static constexpr unsigned char zeros[16] = {};
  Chain<Operation> chain;
  const int endOfA = paddedBytes(a.bytes);
  const int endOfB = paddedBytes(b.bytes);
  const int common = std::min(endOfA, endOfB);
  for (int i = endOfA - 16; i >= common; i -= 16) chain.step(out + i, a.data + i, zeros);
  for (int i = endOfB - 16; i >= common; i -= 16) chain.step(out + i, zeros, b.data + i);
  for (int i = common - 16; i >= 0; i -= 16) chain.step(out + i, a.data + i, b.data + i);
  return chain.carry();
}

#endif

/// The digits of `a` behind `shift` zeros, made in `scratch`.
Digits shifted(M_APM_struct* scratch, const M_APM_struct* a, int shift) {
  const int bytes = byteCount(a);
  const int zeros = shift / 2;
  const int all = zeros + bytes + shift % 2;
  unsigned char* const data = makeRoom(scratch, all + 32);
  std::memset(data, 0, static_cast<std::size_t>(zeros));
  if (shift % 2 != 0) {
    insertDigit(data + zeros, a->data, bytes, 0);
  } else {
    std::memcpy(data + zeros, a->data, static_cast<std::size_t>(bytes));
  }
  pad(data, all);
  return {data, all};
}

/// `high` has the greater exponent, or an equal one, and for differences the greater magnitude.
[[gnu::always_inline]] inline void combineMagnitudes(M_APM_struct* result, Digits high, Digits low, bool difference,
                                                     int exponent, int sign) {
  const int bytes = std::max(high.bytes, low.bytes);
  unsigned char* const data = makeRoom(result, bytes + 24);
  if (difference) {
    combine<Subtracter>(data, high, low);
  } else if (combine<Adder>(data, high, low)) {
    insertDigit(data, data, bytes, 1);
    pad(data, bytes + 1);
    return normalise(result, bytes + 1, exponent + 1LL, sign);
  }
  normalise(result, bytes, exponent, sign);
}

/// The same for exponents that differ. Apart from `sum`, which is quicker without a number of its own.
[[gnu::noinline]] void combineShifted(M_APM_struct* result, const M_APM_struct* a, const M_APM_struct* b,
                                      bool difference, int sign) {
  const Temporary scratch;
  const Digits moved = shifted(scratch, b, static_cast<int>(static_cast<long long>(a->exponent) - b->exponent));
  combineMagnitudes(result, plain(a), moved, difference, a->exponent, sign);
}

void sum(M_APM_struct* result, const M_APM_struct* a, const M_APM_struct* b, int signOfB, const char* tooLong) {
  if (signOfB == 0) return m_apm_copy(result, a);
  if (a->sign == 0) {
    m_apm_copy(result, b);
    result->sign = signOfB;
    return;
  }
  const bool difference = a->sign != signOfB;
  int sign = a->sign;
  if (difference ? compareMagnitudes(a, b) < 0 : a->exponent < b->exponent) {
    std::swap(a, b);
    sign = signOfB;
  }
  if (a->exponent == b->exponent) return combineMagnitudes(result, plain(a), plain(b), difference, a->exponent, sign);
  const long long shift = static_cast<long long>(a->exponent) - b->exponent;
  if (shift + b->dataLength > M_APM_MAX_DIGITS) return refuse(result, tooLong);
  combineShifted(result, a, b, difference, sign);
}
}  // namespace
}  // namespace zarvik::mapm

void m_apm_add(M_APM_struct* result, const M_APM_struct* a, const M_APM_struct* b) {
  zarvik::mapm::sum(result, a, b, b->sign, "'m_apm_add', Result too long");
}

void m_apm_subtract(M_APM_struct* result, const M_APM_struct* a, const M_APM_struct* b) {
  zarvik::mapm::sum(result, a, b, -b->sign, "'m_apm_subtract', Result too long");
}
