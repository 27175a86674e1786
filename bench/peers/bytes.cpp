// Records as bytes against protobuf, which like ours goes by a description at run time: a DynamicMessage of the same
// fields and values. Behind each subject stand the sizes in bytes.
#include <google/protobuf/descriptor.pb.h>
#include <google/protobuf/dynamic_message.h>

#include <cstdlib>
#include <memory>
#include <string>

#include "DataObjectIO.h"
#include "support/Subject.h"
#include "support/Wide.h"

using namespace zarvik;
namespace pb = google::protobuf;

namespace {

constexpr char peer[] = "protobuf DynamicMessage";

/// The description of Wide as protobuf has it.
const pb::Descriptor* describe(pb::DescriptorPool& pool) {
  pb::FileDescriptorProto file;
  file.set_name("wide.proto");
  pb::DescriptorProto& message = *file.add_message_type();
  message.set_name("Wide");
  const DataObjectMetaInfo& info = *Wide::metaInfo();
  for (int i = 0; i < info.getFieldCount(); ++i) {
    pb::FieldDescriptorProto& field = *message.add_field();
    field.set_name(info.getFieldName(i).c_str());
    field.set_number(i + 1);
    field.set_label(i == Wide::GROUP ? field.LABEL_REPEATED : field.LABEL_OPTIONAL);
    field.set_type(i == Wide::GROUP ? field.TYPE_MESSAGE : i < valueCount / 2 ? field.TYPE_STRING : field.TYPE_INT32);
    if (i == Wide::GROUP) field.set_type_name("Wide");
  }
  return pool.BuildFile(file)->message_type(0);
}

/// The same values as those of the record.
void fill(pb::Message& message, const Wide& record) {
  const pb::Reflection& reflection = *message.GetReflection();
  const pb::Descriptor& fields = *message.GetDescriptor();
  for (int i = 0; i < valueCount; ++i) {
    if (!record.flags[i]) continue;
    if (i < valueCount / 2) {
      reflection.SetString(&message, fields.field(i), std::string(record.texts[i].data(), record.texts[i].length()));
    } else {
      reflection.SetInt32(&message, fields.field(i), record.numbers[i - valueCount / 2]);
    }
  }
  for (int i = 0; i < record.group.getElementCount(); ++i) {
    fill(*reflection.AddMessage(&message, fields.field(Wide::GROUP)),
         static_cast<const Wide&>(*record.group.getElement(i)));
  }
}

void bytes() {
  static pb::DescriptorPool pool;
  static pb::DynamicMessageFactory factory;
  static const pb::Message* const prototype = factory.GetPrototype(describe(pool));
  static const SmartPtr<Wide> record = wide(10);
  static const std::unique_ptr<pb::Message> message(prototype->New());
  fill(*message, *record);
  static const Binary ourBytes = DataObjectIO::serialize(record.get());
  static const std::string theirBytes = message->SerializeAsString();
  static const SmartPtr<Wide> copy = wide(0);
  static const std::unique_ptr<pb::Message> copyOfMessage(prototype->New());
  DataObjectIO::parse(copy.get(), ourBytes);
  if (copy->toXMLString() != record->toXMLString()) std::abort();

  const std::string sizes = " (" + std::to_string(ourBytes.length()) + "; " + std::to_string(theirBytes.size()) + ")";
  measure("write 20 fields, group of 10" + sizes, ours, [] { return DataObjectIO::serialize(record.get()); });
  measure("write 20 fields, group of 10" + sizes, peer, [] { return message->SerializeAsString(); });
  measure("read into a new record" + sizes, ours, [] {
    const SmartPtr<Wide> fresh(new Wide);
    DataObjectIO::parse(fresh.get(), ourBytes);
    return fresh->group.getElementCount();
  });
  measure("read into a new record" + sizes, peer, [] {
    const std::unique_ptr<pb::Message> fresh(prototype->New());
    return fresh->ParseFromString(theirBytes);
  });
  measure("read into the same record" + sizes, ours, [] {
    DataObjectIO::parse(copy.get(), ourBytes);
    return copy->group.getElementCount();
  });
  measure("read into the same record" + sizes, peer, [] { return copyOfMessage->ParseFromString(theirBytes); });
}

[[maybe_unused]] const bool registered = (bytes(), true);
}  // namespace
