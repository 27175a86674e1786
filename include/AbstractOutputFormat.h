#pragma once

#include "GuardedCast.h"
#include "ILookupContext.h"

namespace zarvik {

class ExternalObject;
class OutputWriter;
class SimpleOutputWriter;

/// The frame of generated output formats: makes the parts of an external message, maps the normalised object into
/// them, has them written as text, and gives the text to a device.
///
/// The parts come in a fixed order, header, data, trailer, so that the trailer's mapping sees the finished data. A part
/// that is not made is null in its mapping and in the writer.
class AbstractOutputFormat : public IOutputFormat {
 public:
  AbstractOutputFormat();
  AbstractOutputFormat(const AbstractOutputFormat& other);  ///< has count 0
  AbstractOutputFormat& operator=(const AbstractOutputFormat&) = delete;
  ~AbstractOutputFormat() override;

  void setOutputDevice(OutputDevice* device) override { outputDevice = device; }

  /// The device is told the properties "output.device", "input.source" and "output.format", gets the text in one piece
  /// and is closed. The writer keeps the exception handler that it has. A TransformException that leaves has the phase
  /// "Output"; one comes when no protocol is bound, ClassCastException when the writer is no SimpleOutputWriter.
  void write(DataObject* input, TransformContext& context) override;

  // New objects with count 0, which belong to the format's frame; null, as by default, for a part that is not there.
  virtual DataObject* createRecordData() { return nullptr; }
  virtual DataObject* createHeader() { return nullptr; }
  virtual DataObject* createTrailer() { return nullptr; }

  // By default these do nothing.
  virtual void mapData(DataObject* input, DataObject* data, TransformContext& context);
  virtual void mapHeader(DataObject* input, DataObject* header, TransformContext& context);
  virtual void mapTrailer(DataObject* input, DataObject* data, DataObject* trailer, TransformContext& context);

  virtual OutputWriter* getOutputWriter() = 0;  ///< stays the format's own

 protected:
  SimpleOutputWriter* getSimpleOutputWriter();
  zkstring writeOutput(ExternalObject& object, TransformContext& context);

  SmartPtr<ILookupContext> lookupContext;
  OutputDevice* outputDevice = nullptr;  ///< not owned; `write` does not look at it

 private:
  RememberedCast<SimpleOutputWriter, OutputWriter> asSimpleWriter;
};

}  // namespace zarvik
