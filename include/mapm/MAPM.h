#pragma once

#include <cstddef>

/// A decimal number as it rests in memory: sign * 0.d1d2d3... * 10^exponent.
///
/// Records are made by `m_apm_init` and go by `m_apm_free`; only the kernel writes their digits. A number is always
/// normalised: no zero digit leads or trails, and zero has one digit, exponent 0 and sign 0. Behind the last digit the
/// bytes are zero up to the next multiple of 16 bytes, so that arithmetic may read whole words.
struct M_APM_struct {
  unsigned char* data;  ///< two decimal digits a byte, the first byte most significant, each byte 0 to 99
  int id;               ///< M_APM_IDENT, tested when the number is freed
  int refCount;         ///< handles that share the record; a plain integer
  int mallocLength;     ///< bytes of `data` in use by the kernel; 16 spare bytes lie behind them
  int dataLength;       ///< significant decimal digits, at least 1
  int exponent;
  int sign;  ///< -1, 0 or 1
};

constexpr int M_APM_IDENT = 0x6BCC9AE5;

/// Numbers of more digits than this are refused with a warning instead of being built, and so are texts of more
/// characters: a few bytes of input such as "1e2000000000" must not cost gigabytes.
constexpr int M_APM_MAX_DIGITS = 1 << 24;

/// Prints "MAPM Warning: <message>" on standard error; a fatal one is "MAPM Error: <message>" and ends the process with
/// code 100.
void M_apm_log_error_msg(bool fatal, const char* message);

M_APM_struct* m_apm_init();             ///< a new zero with count 1
void m_apm_free(M_APM_struct* number);  ///< back to the pool; warns, and does nothing more, when it is no number

/// The routines of the kernel. `result` is a record of count 1 that is none of the operands. What does not fit into an
/// `int` exponent or M_APM_MAX_DIGITS digits gives a warning and zero.
void m_apm_set_string(M_APM_struct* result, const char* text, std::size_t length);  ///< ends at the first NUL, too
void m_apm_set_long(M_APM_struct* result, long long value);
void m_apm_set_double(M_APM_struct* result, double value);  ///< 15 significant digits
void m_apm_copy(M_APM_struct* result, const M_APM_struct* a);
void m_apm_add(M_APM_struct* result, const M_APM_struct* a, const M_APM_struct* b);
void m_apm_subtract(M_APM_struct* result, const M_APM_struct* a, const M_APM_struct* b);
void m_apm_multiply(M_APM_struct* result, const M_APM_struct* a, const M_APM_struct* b);

/// a / b with `places` significant digits, and as many more as the exponent of a is above that of b: cut when fewer
/// than 250 places are asked for, otherwise rounded. Division by zero warns and gives zero.
void m_apm_divide(M_APM_struct* result, int places, const M_APM_struct* a, const M_APM_struct* b);
void m_apm_reciprocal(M_APM_struct* result, int places, const M_APM_struct* a);  ///< 1/a, rounded to `places` digits
void m_apm_integer_divide(M_APM_struct* result, const M_APM_struct* a, const M_APM_struct* b);  ///< toward zero

/// Keeps `places` + 1 significant digits, half away from zero: with -1 the power of ten above from a first digit of 5
/// on, and otherwise, as with less, zero.
void m_apm_round(M_APM_struct* result, int places, const M_APM_struct* a);
int m_apm_compare(const M_APM_struct* a, const M_APM_struct* b);  ///< -1, 0 or 1
bool m_apm_is_integer(const M_APM_struct* a);
bool m_apm_is_even(const M_APM_struct* a);  ///< warns, and is false, for a fraction
bool m_apm_is_odd(const M_APM_struct* a);   ///< the same

/// The shape of a fixed-point text.
struct M_APM_format {
  long long places;  ///< digits behind the point; 0 rounds to a whole number, below 0 is all digits, at least one
  char point = '.';
  char separator = 0;  ///< between groups of digits before the point; 0 for none
  int group = 0;       ///< digits in a group; below 1 for no groups
};

/// Characters of the fixed-point text at most, without the terminator; for planning a buffer.
long long m_apm_fixpt_length(const M_APM_format& format, const M_APM_struct* a);
/// Writes the text with a terminator and gives its length. The caller has seen to the room, and that it is sane.
std::size_t m_apm_to_fixpt_stringex(char* out, const M_APM_format& format, const M_APM_struct* a);
std::size_t m_apm_to_integer_string(char* out, const M_APM_struct* a);      ///< toward zero; room as for 0 places
std::size_t m_apm_to_string(char* out, int places, const M_APM_struct* a);  ///< d.dddE+n
long long m_apm_to_long(const M_APM_struct* a);  ///< toward zero, held at the ends of the range
double m_apm_to_double(const M_APM_struct* a);

/// An exact decimal number of any length: a handle of one pointer, by value.
///
/// Copies share the counted record; whoever writes copies first (`val`). A moved-from handle is a zero, and a zero
/// that was never written needs no record. Counts are plain integers and the pool of records belongs to the thread, so
/// a number and all its copies belong to one thread at a time. Numbers of up to 160 digits take their records from the
/// pool: arithmetic in a loop does not allocate.
class MAPM {
 public:
  MAPM() noexcept = default;
  MAPM(const MAPM& other) noexcept : number(other.number) { ref(number); }
  MAPM(MAPM&& other) noexcept : number(other.number) { other.number = nullptr; }
  explicit MAPM(M_APM_struct* record) noexcept : number(record) {}  ///< takes over one count
  MAPM(const char* text);                                           ///< a text that is no number warns and is 0
  MAPM(int value) : MAPM(static_cast<long>(value)) {}
  MAPM(long value);
  MAPM(double value);  ///< 15 significant digits; no number and infinity warn and are 0
  ~MAPM() { unref(number); }

  MAPM& operator=(const MAPM& other) noexcept {
    ref(other.number);
    unref(number);
    number = other.number;
    return *this;
  }
  MAPM& operator=(MAPM&& other) noexcept {
    MAPM taken(static_cast<MAPM&&>(other));
    M_APM_struct* const mine = number;
    number = taken.number;
    taken.number = mine;
    return *this;
  }
  MAPM& operator=(const char* text) { return *this = MAPM(text); }
  MAPM& operator=(int value) { return *this = MAPM(value); }
  MAPM& operator=(long value) { return *this = MAPM(value); }
  MAPM& operator=(double value) { return *this = MAPM(value); }

  int operator==(const MAPM& other) const { return m_apm_compare(cval(), other.cval()) == 0; }
  int operator!=(const MAPM& other) const { return m_apm_compare(cval(), other.cval()) != 0; }
  int operator<(const MAPM& other) const { return m_apm_compare(cval(), other.cval()) < 0; }
  int operator<=(const MAPM& other) const { return m_apm_compare(cval(), other.cval()) <= 0; }
  int operator>(const MAPM& other) const { return m_apm_compare(cval(), other.cval()) > 0; }
  int operator>=(const MAPM& other) const { return m_apm_compare(cval(), other.cval()) >= 0; }

  MAPM& operator++();
  MAPM operator++(int);
  MAPM operator-() const { return neg(); }
  MAPM abs() const;
  MAPM neg() const;

  /// The quotient; see `m_apm_divide` for its digits. Without `digits` the greatest of both lengths and 30.
  MAPM divide(const MAPM& other) const { return divide(other, digits(other)); }
  MAPM divide(const MAPM& other, int digits) const;

  MAPM integer_divide(const MAPM& other) const;  ///< the quotient, cut toward zero
  MAPM div(const MAPM& other) const { return integer_divide(other); }
  MAPM rem(const MAPM& other) const;  ///< this - div * other, so it bears this number's sign
  void integer_div_rem(const MAPM& other, MAPM& quotient, MAPM& remainder) const;  ///< `div` and `rem` at once

  MAPM round(int places) const;  ///< to places + 1 significant digits, half away from zero

  int sign() const { return cval()->sign; }
  int exponent() const { return cval()->sign == 0 ? 0 : cval()->exponent - 1; }  ///< power of ten of the first digit
  int significant_digits() const { return cval()->dataLength; }
  int is_integer() const { return m_apm_is_integer(cval()); }
  int is_even() const { return m_apm_is_even(cval()); }  ///< a fraction warns and is neither even nor odd
  int is_odd() const { return m_apm_is_odd(cval()); }

  /// Texts into the caller's buffer, terminated. `fixPtLength` tells the room that a fixed-point text needs. A text of
  /// more than M_APM_MAX_DIGITS characters is refused: a warning, and the empty text.
  void toString(char* out, int places) const;  ///< d.dddE+n with `places` decimals, or all of them if below 0
  void toFixPtString(char* out, int places) const { toFixPtStringEx(out, places, '.', 0, 0); }
  void toFixPtStringEx(char* out, int places, char point, char separator, int group) const;  ///< see M_APM_format
  char* toFixPtStringExp(int places, char point, char separator, int group) const;  ///< the caller's, to `free`
  void toIntegerString(char* out) const;                                            ///< toward zero

  /// Most characters of a fixed-point text, without the terminator.
  long long fixPtLength(long long places) const { return m_apm_fixpt_length({places}, cval()); }

  int toInt() const { return static_cast<int>(toLong()); }  ///< toward zero; beyond `int` the low bits of `toLong`
  long toLong() const { return static_cast<long>(m_apm_to_long(cval())); }  ///< held at the ends of the range
  float toFloat() const;                                                    ///< infinite where a float is too small
  double toDouble() const { return m_apm_to_double(cval()); }               ///< infinite where a double is too small

 protected:
  static constexpr int DEFAULT_PRECISION = 30;

  static M_APM_struct* makeNew() { return m_apm_init(); }
  void create() { number = makeNew(); }  ///< for a handle without a record
  void destroy() {
    unref(number);
    number = nullptr;
  }
  void copyFrom(M_APM_struct* record) {  ///< takes over one count
    unref(number);
    number = record;
  }

  /// What a routine of the kernel makes of two numbers, which throws nothing.
  template <void (*routine)(M_APM_struct*, const M_APM_struct*, const M_APM_struct*)>
  static MAPM resultOf(const MAPM& a, const MAPM& b) {
    M_APM_struct* const result = makeNew();
    routine(result, a.cval(), b.cval());
    return MAPM(result);
  }

  /// The record for writing: this handle's own, copied first when it is shared.
  M_APM_struct* val();
  /// The record for reading.
  const M_APM_struct* cval() const { return number != nullptr ? number : &zero; }

  int myDigits() const { return digits(*this); }
  /// The greatest of both lengths and DEFAULT_PRECISION.
  int digits(const MAPM& other) const {
    const int longer = cval()->dataLength > other.cval()->dataLength ? cval()->dataLength : other.cval()->dataLength;
    return longer > DEFAULT_PRECISION ? longer : DEFAULT_PRECISION;
  }

  static void ref(M_APM_struct* record) {
    if (record != nullptr) ++record->refCount;
  }
  static void unref(M_APM_struct* record) {
    if (record != nullptr && --record->refCount == 0) m_apm_free(record);
  }

 private:
  static const M_APM_struct zero;  ///< what a handle without a record reads

  M_APM_struct* number = nullptr;
};
