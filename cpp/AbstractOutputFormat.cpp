#include "AbstractOutputFormat.h"

#include "ExternalObject.h"
#include "LookupContextFactory.h"
#include "OutputTarget.h"
#include "SimpleOutputWriter.h"
#include "Stamped.h"
#include "TransformContext.h"

namespace zarvik {

AbstractOutputFormat::AbstractOutputFormat() : lookupContext(LookupContextFactory::getLookupContext()) {}

AbstractOutputFormat::AbstractOutputFormat(const AbstractOutputFormat& other) : AbstractOutputFormat() {
  outputDevice = other.outputDevice;
}

AbstractOutputFormat::~AbstractOutputFormat() = default;

void AbstractOutputFormat::write(DataObject* input, TransformContext& context) {
  stamped([](TransformException& error) { error.setPhase(ExceptionObject::getOUTPUT_PHASE()); },
          [&] {
            OutputTarget target(*lookupContext, context);
            const SmartPtr<DataObject> header(createHeader());
            mapHeader(input, header.get(), context);
            const SmartPtr<DataObject> data(createRecordData());
            mapData(input, data.get(), context);
            const SmartPtr<DataObject> trailer(createTrailer());
            mapTrailer(input, data.get(), trailer.get(), context);
            ExternalObject object(header.get(), data.get(), trailer.get());
            const zkstring text = writeOutput(object, context);
            deliver(text, *target.createDevice());
          });
}

void AbstractOutputFormat::mapData(DataObject* /*input*/, DataObject* /*data*/, TransformContext& /*context*/) {}

void AbstractOutputFormat::mapHeader(DataObject* /*input*/, DataObject* /*header*/, TransformContext& /*context*/) {}

void AbstractOutputFormat::mapTrailer(DataObject* /*input*/, DataObject* /*data*/, DataObject* /*trailer*/,
                                      TransformContext& /*context*/) {}

SimpleOutputWriter* AbstractOutputFormat::getSimpleOutputWriter() {
  OutputWriter* const writer = getOutputWriter();
  if (SimpleOutputWriter* const simple = asSimpleWriter(writer)) return simple;
  return guardedCast<SimpleOutputWriter>(writer);  // which says why not
}

zkstring AbstractOutputFormat::writeOutput(ExternalObject& object, TransformContext& context) {
  return getSimpleOutputWriter()->writeExternal(object, context);
}

}  // namespace zarvik
