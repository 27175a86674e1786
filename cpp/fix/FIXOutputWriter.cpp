#include "fix/FIXOutputWriter.h"

#include "../TextForms.h"
#include "Exceptions.h"
#include "ThrowFrom.h"

namespace zarvik {
namespace {

constexpr char here[] = "cpp/fix/FIXOutputWriter";
}

zkstring FIXOutputWriter::endMessage() {
  const std::size_t head = firstFieldSize();
  char field[20];  // all that is behind the head is the body
  field[0] = '9';
  field[1] = '=';
  char* end = putText(field + 2, static_cast<int>(message().size() - head));
  *end++ = delimiter;
  return finish(head, {field, end});
}

void FIXOutputWriter::requiredFieldMissing(AbstractDataObject* object, int fieldIndex, int tag) const {
  throwFrom(here, FIXWriterException(requiredFieldText(*object, fieldIndex, tag)));
}

}  // namespace zarvik
