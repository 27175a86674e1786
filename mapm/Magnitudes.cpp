#include "Magnitudes.h"

#include <algorithm>

#include "Carries.h"
#include "DigitShift.h"

namespace zarvik::mapm {
namespace {

int blocksOf(Digits a) { return paddedBytes(a.bytes); }

#ifdef __SSE2__

/// Adds a carry to byte i; whether one goes beyond the first byte.
template <class Operation>
bool carryInto(unsigned char* out, int i) {
  for (; i >= 0 && out[i] == Operation::last; --i) out[i] = 99 - Operation::last;
  if (i >= 0) out[i] = static_cast<unsigned char>(out[i] + Operation::step);
  return i < 0;
}

/// Adds a carry to the byte before each one whose bit in `missed` is set; whether one goes beyond the first byte.
template <class Operation, class Bits>
bool carryOn(unsigned char* out, int i, Bits missed) {
  bool beyond = false;
  for (; missed != 0; missed &= missed - 1) {
    if (carryInto<Operation>(out, i + std::countr_zero(missed) - 1)) beyond = true;
  }
  return beyond;
}

/// Combines sixteen bytes at a time, from the first to the last. Each byte takes the carry that the bytes behind it, as
/// they stand, give out; where a byte hands a carry on that came to it, which is seldom, the carry is added later.
template <class Operation>
class Chain {
 public:
  explicit Chain(unsigned char* out) : out(out) {}

  /// Bytes i to i + 15; the other two operands are those of one byte on.
  void step(int i, __m128i a, __m128i b, __m128i nextA, __m128i nextB) {
    const int missed = _mm_movemask_epi8(put(i, a, b, nextA, nextB));
    if (missed != 0) [[unlikely]]
      carryOn(i, missed);
  }
  /// Bytes i to i + 31 of numbers that go on behind them.
  void twoSteps(int i, const unsigned char* a, const unsigned char* b) {
    const __m128i first = put(i, load(a), load(b), load(a + 1), load(b + 1));
    const __m128i second = put(i + 16, load(a + 16), load(b + 16), load(a + 17), load(b + 17));
    if (_mm_movemask_epi8(_mm_or_si128(first, second)) != 0) [[unlikely]]
      carryOn(i, _mm_movemask_epi8(first) | _mm_movemask_epi8(second) << 16);
  }
  bool carry() const { return carried; }  ///< beyond the first byte, of those added later

 private:
  /// High bits are set where a carry was missed.
  __m128i put(int i, __m128i a, __m128i b, __m128i nextA, __m128i nextB) {
    const Combined sum = combine<Operation>(a, b, Operation::carries(nextA, nextB));
    store(out + i, sum.bytes);
    return sum.missed;
  }
  void carryOn(int i, int missed) {
    if (mapm::carryOn<Operation>(out, i, static_cast<unsigned int>(missed))) carried = true;
  }

  unsigned char* const out;
  bool carried = false;
};

/// Whether the first byte gives out a carry, while no byte does so as it stands.
template <class Operation>
bool combineAll(unsigned char* out, Digits a, Digits b) {
  const int endOfA = blocksOf(a);
  const int endOfB = blocksOf(b);
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
  return chain.carry();
}

/// Adds blocks of sixteen bytes, from the last one to the first, and moves the digits to the back by one on the way: a
/// byte is the units of one sum and the tens of the one behind it. Where these are ten and more they bring the carry
/// along, and only where the byte becomes a hundred, which is seldom, one goes to the byte before it.
class ShiftingAdder {
 public:
  explicit ShiftingAdder(int tensBehind) : tens(_mm_cvtsi32_si128(tensBehind)), carries(_mm_setzero_si128()) {}

  /// Makes out[1] to out[16] of the first sixteen bytes.
  void step(unsigned char* out, const unsigned char* a, const unsigned char* b) {
    const int missed = _mm_movemask_epi8(put(out, a, b));
    if (missed != 0) [[unlikely]]
      carryOn(out, static_cast<unsigned int>(missed));
  }
  void fourSteps(unsigned char* out, const unsigned char* a, const unsigned char* b) {
    const __m128i fourth = put(out + 48, a + 48, b + 48);
    const __m128i third = put(out + 32, a + 32, b + 32);
    const __m128i second = put(out + 16, a + 16, b + 16);
    const __m128i first = put(out, a, b);
    const __m128i any = _mm_or_si128(_mm_or_si128(first, second), _mm_or_si128(third, fourth));
    if (_mm_movemask_epi8(any) == 0) [[likely]]
      return;
    const auto bits = [](__m128i missed) {
      return std::uint64_t{static_cast<unsigned int>(_mm_movemask_epi8(missed))};
    };
    carryOn(out, bits(first) | bits(second) << 16 | bits(third) << 32 | bits(fourth) << 48);
  }
  /// The byte in front.
  unsigned char first() const { return static_cast<unsigned char>(_mm_cvtsi128_si32(_mm_sub_epi8(tens, carries))); }

 private:
  /// High bits are set where a carry was missed.
  __m128i put(unsigned char* out, const unsigned char* a, const unsigned char* b) {
    const SwappedDigits digits = swapDigits(_mm_add_epi8(load(a), load(b)), factor(10));
    const __m128i joined = _mm_add_epi8(digits.units, behindFirst(digits.tens, tens));
    const __m128i carriesOut = Adder::carries(joined);
    const __m128i in = behindFirst(carriesOut, carries);
    tens = digits.tens;
    carries = carriesOut;
    const Combined sum = settled<Adder>(joined, in);
    store(out + 1, sum.bytes);
    return sum.missed;
  }
  void carryOn(unsigned char* out, std::uint64_t missed) {
    if (mapm::carryOn<Adder>(out + 1, 0, missed)) carries = _mm_or_si128(carries, _mm_cvtsi32_si128(0xFF));
  }

  __m128i tens;     ///< of the block behind
  __m128i carries;  ///< that it gives out
};

/// out = a + b where the first bytes alone carry, so that the digits are moved as they come: true for that carry.
[[gnu::noinline]] bool addBehindOne(unsigned char* out, Digits a, Digits b) {
  if (a.bytes < b.bytes) std::swap(a, b);
  int i = blocksOf(b);
  if (a.bytes > i) insertDigit(out + i, a.data + i, a.bytes - i, 0);
  pad(out, a.bytes + 1);
  ShiftingAdder adder(a.bytes > i ? a.data[i] / 10 : 0);
  for (; i >= 64; i -= 64) adder.fourSteps(out + i - 64, a.data + i - 64, b.data + i - 64);
  for (; i > 0; i -= 16) adder.step(out + i - 16, a.data + i - 16, b.data + i - 16);
  out[0] = adder.first();
  return true;
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

/// Whether the first byte gives out a carry.
template <class Operation>
bool combineAll(unsigned char* out, Digits a, Digits b) {
  static constexpr unsigned char zeros[16] = {};
  Chain<Operation> chain;
  const int endOfA = blocksOf(a);
  const int endOfB = blocksOf(b);
  const int common = std::min(endOfA, endOfB);
  for (int i = endOfA - 16; i >= common; i -= 16) chain.step(out + i, a.data + i, zeros);
  for (int i = endOfB - 16; i >= common; i -= 16) chain.step(out + i, zeros, b.data + i);
  for (int i = common - 16; i >= 0; i -= 16) chain.step(out + i, a.data + i, b.data + i);
  return chain.carry();
}

#endif

/// out = a + b, moved where it then turns out that there is a carry. Apart, as this and the quick case are quicker so.
[[gnu::noinline]] bool addAny(unsigned char* out, Digits a, Digits b) {
  if (!combineAll<Adder>(out, a, b)) return false;
  const int bytes = std::max(a.bytes, b.bytes);
  insertDigit(out, out, bytes, 1);
  pad(out, bytes + 1);
  return true;
}
}  // namespace

bool addMagnitudes(unsigned char* out, Digits a, Digits b) {
#ifdef __SSE2__
  if (a.data[0] + b.data[0] > 99) return addBehindOne(out, a, b);
#endif
  return addAny(out, a, b);
}

void subtractMagnitudes(unsigned char* out, Digits a, Digits b) { combineAll<Subtracter>(out, a, b); }

}  // namespace zarvik::mapm
