#pragma once

#include "SimpleOutputWriter.h"

namespace zarvik {

class DataObject;

/// The frame of the writers of all formats: a message is begun, its header, data and trailer are written, and the text
/// is taken. Generated code fills the three steps between, through the base of its format where there is one.
class AbstractSimpleOutputWriter : public SimpleOutputWriter {
 public:
  zkstring writeExternal(ExternalObject& object, TransformContext& context) override;

  // Each gets its part as it stands in the object: null where the part is missing.
  virtual void writeHeader(DataObject* header, TransformContext& context) = 0;
  virtual void writeData(DataObject* data, TransformContext& context) = 0;
  virtual void writeTrailer(DataObject* trailer, TransformContext& context) = 0;

  virtual void initMessage() = 0;     ///< forgets the message before, whether it was finished or not
  virtual zkstring endMessage() = 0;  ///< the text, which stays as it is when the next message begins
};

}  // namespace zarvik
