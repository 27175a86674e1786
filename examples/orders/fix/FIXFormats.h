#pragma once

#include "AbstractExternalMessage.h"
#include "AbstractInputFormat.h"
#include "AbstractOutputFormat.h"
#include "orders/As.h"
#include "orders/Names.h"
#include "orders/Order.h"
#include "orders/fix/Kinds.h"
#include "orders/fix/Mapping.h"

namespace orders {

// The services of a FIX message of one kind in one version: what the registry makes by name.

template <class Kind>
zarvik::SmartPtr<zarvik::ExternalObject> createMessage() {
  return newMessage(new typename Kind::Body);
}

/// The message by itself, for flows and tools: parsed, validated, written.
template <class Kind, Version version>
class FIXMessage : public zarvik::AbstractExternalMessage {
 public:
  FIXMessage() : AbstractExternalMessage(zarvik::zkstringliteral(Kind::NAME)) { addValidator("Default", &rules); }

  zarvik::SmartPtr<zarvik::ExternalObject> createExternalObject() override { return createMessage<Kind>(); }
  zarvik::InputParser* getInputParser() override { return &parser; }
  zarvik::SimpleOutputWriter* getOutputWriter() override { return &writer; }

 private:
  typename Kind::Parser parser{version};
  typename Kind::Writer writer{version};
  typename Kind::Rules rules{version, Kind::TYPE};
};

/// The message on its way in: parsed, and mapped to the normalised order. The parsed message is filled anew each time.
template <class Kind, Version version>
class FIXInput : public zarvik::AbstractInputFormat {
 public:
  FIXInput() : AbstractInputFormat(ORDER_MESSAGE), message(createMessage<Kind>()) {}

  void parseInput(zarvik::InputSource& source, zarvik::DataObject* object, zarvik::TransformContext& context) override {
    message->reset();
    parser.parse(message.get(), source, context);
    toOrder(static_cast<const zarvik::FIXHeader&>(*message->getHeader()), version,
            static_cast<const typename Kind::Body&>(*message->getData()), static_cast<Order&>(*object));
  }
  zarvik::DataObject* createNormalizedObject() override { return new Order; }

 private:
  typename Kind::Parser parser{version};
  zarvik::SmartPtr<zarvik::ExternalObject> message;
};

/// The message on its way out: mapped from the normalised order, and written. Header and body are kept for the next.
template <class Kind, Version version>
class FIXOutput : public zarvik::AbstractOutputFormat {
 public:
  zarvik::DataObject* createHeader() override { return header->reset(), header.get(); }
  zarvik::DataObject* createRecordData() override { return body->reset(), body.get(); }
  void mapHeader(zarvik::DataObject* input, zarvik::DataObject* /*header*/,
                 zarvik::TransformContext& context) override {
    fromOrder(as<Order>(input), version, Kind::TYPE, context, *header);
  }
  void mapData(zarvik::DataObject* input, zarvik::DataObject* /*data*/,
               zarvik::TransformContext& /*context*/) override {
    fromOrder(as<Order>(input), version, *body);
  }
  zarvik::OutputWriter* getOutputWriter() override { return &writer; }

 private:
  zarvik::SmartPtr<zarvik::FIXHeader> header{new zarvik::FIXHeader};
  zarvik::SmartPtr<typename Kind::Body> body{new typename Kind::Body};
  typename Kind::Writer writer{version};
};

}  // namespace orders
