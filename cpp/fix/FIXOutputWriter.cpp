#include "fix/FIXOutputWriter.h"

#include <charconv>
#include <cstring>
#include <iterator>

#include "Exceptions.h"
#include "ThrowFrom.h"

namespace zarvik {
namespace {

constexpr char here[] = "cpp/fix/FIXOutputWriter";
}

zkstring FIXOutputWriter::endMessage() {
  const std::size_t head = firstFieldSize();
  char field[20];  // all that is behind the head is the body
  std::memcpy(field, "9=", 2);
  char* end = std::to_chars(field + 2, std::end(field) - 1, static_cast<unsigned int>(message().size() - head)).ptr;
  *end++ = delimiter;
  return finish(head, {field, end});
}

void FIXOutputWriter::requiredFieldMissing(AbstractDataObject* object, int fieldIndex, int tag) const {
  throwFrom(here, FIXWriterException(requiredFieldText(*object, fieldIndex, tag)));
}

}  // namespace zarvik
