#include <algorithm>
#ifdef __SSE2__
#include <emmintrin.h>
#endif

#include "Record.h"

// Addition and subtraction, in base 100 as the digits lie, sixteen bytes at a time.

namespace zarvik::mapm {
namespace {

#ifdef __SSE2__

__m128i load(const unsigned char* bytes) { return _mm_loadu_si128(reinterpret_cast<const __m128i*>(bytes)); }

/// Byte by byte.
__m128i timesTen(__m128i digits) {
  const __m128i twice = _mm_add_epi8(digits, digits);
  const __m128i four = _mm_add_epi8(twice, twice);
  return _mm_add_epi8(_mm_add_epi8(four, four), twice);
}

/// Lanes of all bits where a carry goes into a byte: from the byte behind it, or from the block behind this one.
__m128i carriesIn(__m128i out, __m128i behind) {
  return _mm_or_si128(_mm_srli_si128(out, 1), _mm_slli_si128(behind, 15));
}

/// a + b. A byte is kept less 100, so that its sign tells whether it carries.
struct Adder {
  static __m128i combine(__m128i a, __m128i b) { return _mm_add_epi8(a, _mm_sub_epi8(b, _mm_set1_epi8(100))); }
  static __m128i carries(__m128i raw) { return _mm_cmpgt_epi8(raw, _mm_set1_epi8(-1)); }
  static __m128i wavering(__m128i raw) { return _mm_cmpeq_epi8(raw, _mm_set1_epi8(-1)); }
  static __m128i apply(__m128i raw, __m128i in) { return _mm_sub_epi8(raw, in); }
  static __m128i settle(__m128i sum, __m128i out) {
    return _mm_add_epi8(sum, _mm_andnot_si128(out, _mm_set1_epi8(100)));
  }
};

/// a - b; a byte below 0 borrows.
struct Subtracter {
  static __m128i combine(__m128i a, __m128i b) { return _mm_sub_epi8(a, b); }
  static __m128i carries(__m128i raw) { return _mm_cmpgt_epi8(_mm_setzero_si128(), raw); }
  static __m128i wavering(__m128i raw) { return _mm_cmpeq_epi8(raw, _mm_setzero_si128()); }
  static __m128i apply(__m128i raw, __m128i in) { return _mm_add_epi8(raw, in); }
  static __m128i settle(__m128i sum, __m128i out) { return _mm_add_epi8(sum, _mm_and_si128(out, _mm_set1_epi8(100))); }
};

/// Combines blocks of sixteen bytes from the last to the first.
template <class Operation>
class Chain {
 public:
  void step(unsigned char* out, const unsigned char* a, const unsigned char* b) {
    const __m128i raw = Operation::combine(load(a), load(b));
    __m128i carries = Operation::carries(raw);
    __m128i in = carriesIn(carries, behind);
    __m128i sum = Operation::apply(raw, in);
    if (_mm_movemask_epi8(_mm_and_si128(Operation::wavering(raw), in)) != 0) [[unlikely]]
      ripple(raw, carries, sum);
    _mm_storeu_si128(reinterpret_cast<__m128i*>(out), Operation::settle(sum, carries));
    behind = carries;
  }
  bool carry() const { return (_mm_movemask_epi8(behind) & 1) != 0; }

 private:
  /// A carry went into a byte that hands it on: repeats until no carry is new.
  void ripple(__m128i raw, __m128i& carries, __m128i& sum) const {
    for (;;) {
      const __m128i now = Operation::carries(sum);
      const __m128i all = _mm_or_si128(now, carries);
      if (_mm_movemask_epi8(_mm_cmpeq_epi8(all, carries)) == 0xFFFF) return;
      carries = all;
      sum = Operation::apply(raw, carriesIn(carries, behind));
    }
  }

  __m128i behind = _mm_setzero_si128();
};

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

#endif

/// The digits of an operand, with zeros behind them up to whole blocks of sixteen bytes.
struct Digits {
  const unsigned char* data;
  int bytes;
};

Digits plain(const M_APM_struct* a) { return {a->data, byteCount(a)}; }

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

/// Moves `bytes` bytes of digits one digit to the back, behind `digit`, from `in` to `out`, which may be the same.
/// `out` has room for 16 bytes more; what follows the digits there is zero up to byte bytes + 1 at least.
void insertDigit(unsigned char* out, const unsigned char* in, int bytes, unsigned int digit) {
  int i = 0;
#ifdef __SSE2__
  __m128i behind = _mm_set_epi32(static_cast<int>(digit << 24), 0, 0, 0);
  for (; i < bytes; i += 16) {
    const __m128i pair = load(in + i);
    const __m128i even = _mm_mullo_epi16(_mm_and_si128(pair, _mm_set1_epi16(0xFF)), _mm_set1_epi16(103));
    const __m128i odd = _mm_mullo_epi16(_mm_srli_epi16(pair, 8), _mm_set1_epi16(103));
    const __m128i tens = _mm_or_si128(_mm_srli_epi16(even, 10), _mm_slli_epi16(_mm_srli_epi16(odd, 10), 8));
    const __m128i units = _mm_sub_epi8(pair, timesTen(tens));
    const __m128i moved = _mm_or_si128(_mm_slli_si128(units, 1), _mm_srli_si128(behind, 15));
    _mm_storeu_si128(reinterpret_cast<__m128i*>(out + i), _mm_add_epi8(timesTen(moved), tens));
    behind = units;
  }
  const auto before = static_cast<unsigned int>(_mm_cvtsi128_si32(_mm_srli_si128(behind, 15)));
#else
  std::uint64_t before = digit;
  for (; i < bytes; i += 8) {
    std::uint64_t tens;
    const std::uint64_t units = splitTens(loadLow(in + i), tens);
    storeLow(out + i, 10 * (units << 8 | before) + tens);
    before = units >> 56;
  }
#endif
  storeLow(out + i, 10 * before);
}

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
void combineMagnitudes(M_APM_struct* result, Digits high, Digits low, bool difference, int exponent, int sign) {
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
  const Temporary scratch;
  const Digits moved = shifted(scratch, b, static_cast<int>(shift));
  combineMagnitudes(result, plain(a), moved, difference, a->exponent, sign);
}
}  // namespace
}  // namespace zarvik::mapm

void m_apm_add(M_APM_struct* result, const M_APM_struct* a, const M_APM_struct* b) {
  zarvik::mapm::sum(result, a, b, b->sign, "'m_apm_add', Result too long");
}

void m_apm_subtract(M_APM_struct* result, const M_APM_struct* a, const M_APM_struct* b) {
  zarvik::mapm::sum(result, a, b, -b->sign, "'m_apm_subtract', Result too long");
}
