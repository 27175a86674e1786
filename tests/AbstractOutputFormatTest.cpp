#include "AbstractOutputFormat.h"

#include "TestRecord.h"

namespace zarvik {
namespace {

std::string steps;  ///< what was done, in order

zkstring nameOf(DataObject* part) {
  return part != nullptr ? part->getFieldVal(TestRecord::NAME)->getString() : "null";
}

/// Writes the names of the parts.
struct Writer : AbstractSimpleOutputWriter {
  void writeHeader(DataObject* header, TransformContext&) override { text.append("H:").append(nameOf(header)); }
  void writeData(DataObject* data, TransformContext&) override { text.append(" D:").append(nameOf(data)); }
  void writeTrailer(DataObject* trailer, TransformContext&) override { text.append(" T:").append(nameOf(trailer)); }
  void initMessage() override { text.clear(); }
  zkstring endMessage() override { return zkstring(text.data(), text.length()); }
  using SimpleOutputWriter::exceptionHandler;

  zkstringbuffer text;
};

/// A format without parts.
struct Bare : AbstractOutputFormat {
  Bare(OutputWriter* writer) : writer(writer) {}
  OutputWriter* getOutputWriter() override { return writer; }
  OutputWriter* writer;
};

/// A format with all parts, whose names tell what was known when they were mapped.
struct Full : Bare {
  using Bare::Bare;
  DataObject* createRecordData() override { return TestRecord::named("data"); }
  DataObject* createHeader() override { return TestRecord::named("header"); }
  DataObject* createTrailer() override { return TestRecord::named("trailer"); }
  void mapData(DataObject* input, DataObject* data, TransformContext&) override { map(input, data); }
  void mapHeader(DataObject* input, DataObject* header, TransformContext&) override { map(input, header); }
  void mapTrailer(DataObject* input, DataObject* data, DataObject* trailer, TransformContext&) override {
    map(input, trailer);
    map(data, trailer);
  }
  static void map(DataObject* from, DataObject* to) {
    steps += (nameOf(to) + " ").c_str();
    dynamic_cast<TestRecord*>(to)->setField(TestRecord::NAME, nameOf(to) + "<" + nameOf(from));
  }
};

struct Device : AbstractOutputDevice {
  using AbstractOutputDevice::AbstractOutputDevice;
  void write(const char* bytes, int count) override {
    NamingException error("no room");
    error.setPhase("inner");
    if (getDeviceInfo().getMessageIdentifier() == "refused") throw error;
    steps += "[" + std::string(bytes, static_cast<std::size_t>(count)) + "]";
  }
  void close() override { steps += " closed"; }
};

struct Protocol : IOutputProtocol {
  OutputDevice* createDevice(DeviceInfo& info, TransformContext&) override {
    steps += (info.getDeviceName() + "," + info.getMessageIdentifier() + "," + info.getOutputFormatName()).c_str();
    device.reset(new Device(info));
    return device.get();
  }
  SmartPtr<Device> device;
};

/// A context whose output goes to a protocol that notes it.
struct Output {
  Output() {
    registry->bind("here", new Protocol);
    context.setProperty(TransformContext::OUTPUT_DEVICE_PROPERTY, "here");
    context.setProperty(TransformContext::OUTPUT_FORMAT_PROPERTY, "format");
    context.setProperty(TransformContext::INPUT_SOURCE_PROPERTY, "source");
    steps.clear();
  }
  ~Output() noexcept(false) { registry->unbind("here"); }

  void write(IOutputFormat& format) { format.write(input.get(), context); }
  /// The text and the phase of the error that leaves.
  std::string failure(IOutputFormat& format) {
    try {
      write(format);
    } catch (const TransformException& error) {
      return (error.getMessage() + "|" + error.getPhase()).c_str();
    }
    return "no exception";
  }

  const SmartPtr<ILookupContext> registry = LookupContextFactory::getLookupContext();
  const SmartPtr<TestRecord> input = SmartPtr<TestRecord>(TestRecord::named("input"));
  TransformContext context;
  Writer writer;
};

TEST(Output, mapsThePartsInOrderAndWritesThem) {
  Output at;
  at.write(*SmartPtr<Full>(new Full(&at.writer)));
  at.write(*SmartPtr<Bare>(new Bare(&at.writer)));
  EXPECT_EQ(steps,
            "header data trailer trailer<input "
            "here,source,format[H:header<input D:data<input T:trailer<input<data<input] closed"
            "here,source,format[H:null D:null T:null] closed");
}

TEST(Output, stampsItsPhaseOnWhatLeaves) {
  Output at;
  struct : OutputWriter {
  } other;
  const SmartPtr<Bare> bare(new Bare(&at.writer));
  for (OutputWriter* refused : {static_cast<OutputWriter*>(nullptr), static_cast<OutputWriter*>(&other)}) {
    bare->writer = refused;
    const std::string error = errorOf<ClassCastException>([&] { at.write(*bare); });
    EXPECT_EQ(error.substr(error.rfind(" to ")), " to zarvik::SimpleOutputWriter");
  }
  EXPECT_EQ(steps, "");
  bare->writer = &at.writer;
  const SmartPtr<IOutputFormat> xml = at.registry->lookupOutputFormat("NOXMLOut");
  at.context.setProperty(TransformContext::INPUT_SOURCE_PROPERTY, "refused");
  EXPECT_EQ(at.failure(*bare), "no room|Output");
  EXPECT_EQ(at.failure(*xml), "no room|inner");
  EXPECT_EQ(steps, "here,refused,formathere,refused,format");  // and none closed
  at.context.clear();
  EXPECT_EQ(at.failure(*bare), "Device not available at |Output");
  EXPECT_EQ(at.failure(*xml), "Device not available at |");
}

TEST(Output, writesXMLWithoutGeneratedCode) {
  Output at;
  const SmartPtr<IOutputFormat> format = at.registry->lookupOutputFormat("NOXMLOut");
  const SmartPtr<Object> copy(format->clone());
  at.write(*format);
  at.write(dynamic_cast<IOutputFormat&>(*copy));
  const std::string once = "here,source,format[" + std::string(at.input->toXMLString().c_str()) + "] closed";
  EXPECT_EQ(steps, once + once);
  EXPECT_EQ(errorOf<NamingException>([&] { at.registry->bind("NOXMLOut", nullptr); }), "NOXMLOut already bound");
}

TEST(Output, aWriterKeepsTheHandlerOfItsLastCall) {
  Output at;
  CascadingExceptionHandler handler;
  ExternalObject object(TestRecord::named("h"), TestRecord::named("d"), nullptr);
  EXPECT_EQ(at.writer.exceptionHandler, ExceptionHandler::DRACONIAN_EXCEPTION_HANDLER);
  EXPECT_EQ(at.writer.write(object, &handler, at.context), "H:h D:d T:null");
  const RawMessage message = at.writer.writeExternalMessage(object, at.context);
  EXPECT_EQ(at.writer.exceptionHandler, &handler);
  at.writer.writeMessage(object, ExceptionHandler::DRACONIAN_EXCEPTION_HANDLER, at.context);
  EXPECT_EQ(at.writer.exceptionHandler, ExceptionHandler::DRACONIAN_EXCEPTION_HANDLER);
  EXPECT_EQ(message->getAsString(), "H:h D:d T:null");
}

}  // namespace
}  // namespace zarvik
