#include "AbstractSimpleOutputWriter.h"

#include "ExternalObject.h"

namespace zarvik {

zkstring AbstractSimpleOutputWriter::writeExternal(ExternalObject& object, TransformContext& context) {
  initMessage();
  writeHeader(object.getHeader(), context);
  writeData(object.getData(), context);
  writeTrailer(object.getTrailer(), context);
  return endMessage();
}

}  // namespace zarvik
