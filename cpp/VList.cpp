#include "VList.h"

#include "BigDecimal.h"
#include "BigInteger.h"
#include "Binary.h"
#include "Conversion.h"
#include "RawMessage.h"
#include "date/DateTime.h"
#include "zkstringbuffer.h"

namespace zarvik {
namespace {

// How an element stands in the text of its list.
zkstring elementText(bool value) { return intToString(value ? 1 : 0); }
zkstring elementText(char value) { return charToString(value); }
zkstring elementText(int value) { return intToString(value); }
zkstring elementText(__int64 value) { return dlongToString(value); }
zkstring elementText(float value) { return floatToString(value); }
zkstring elementText(double value) { return doubleToString(value); }
const zkstring& elementText(const zkstring& value) { return value; }
zkstring elementText(const Binary& value) { return binaryToString(value); }
zkstring elementText(const BigInteger& value) { return bigIntegerToString(value); }
zkstring elementText(const BigDecimal& value) { return bigDecimalToString(value); }
zkstring elementText(const DateTime& value) { return dateTimeToString(value); }
zkstring elementText(const RawMessage& value) { return value.isNull() ? zkstring() : value->getAsString(); }
}  // namespace

template <class C, class T>
zkstring VList<C, T>::toString() const {
  zkstringbuffer text("[");
  for (int i = 0; i < size(); ++i) {
    if (i > 0) text.append(", ");
    text.append(elementText(at(i)));
  }
  text.append(']');
  return text;
}

template class VList<SimpleDeque<bool>, bool>;
template class VList<std::vector<char>, char>;
template class VList<std::vector<int>, int>;
template class VList<std::vector<__int64>, __int64>;
template class VList<std::vector<float>, float>;
template class VList<std::vector<double>, double>;
template class VList<std::vector<zkstring>, zkstring>;
template class VList<std::vector<Binary>, Binary>;
template class VList<std::vector<BigInteger>, BigInteger>;
template class VList<std::vector<BigDecimal>, BigDecimal>;
template class VList<std::vector<DateTime>, DateTime>;
template class VList<std::vector<RawMessage>, RawMessage>;

}  // namespace zarvik
