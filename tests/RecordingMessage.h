#pragma once

#include <sstream>

#include "IExternalMessage.h"
#include "IInternalMessage.h"

namespace zarvik {

/// A message that writes down which operation is called with which arguments, by address, and gives nothing back.
template <class Base>
class RecordingMessage : public Base {
 public:
  using Handle = SmartPtr<DataObject>;

  Handle createObject() override { return note("createObject"); }
  Handle parse(const Binary& b, TransformContext& c) override { return note("parse bytes", &b, &c); }
  Handle parse(const RawMessage& m, TransformContext& c) override { return note("parse message", &m, &c); }
  Handle parse(InputSource& s, TransformContext& c) override { return note("parse source", &s, &c); }
  Result<Handle> parse2(const Binary& b, TransformContext& c) override { return {note("parse2 bytes", &b, &c), {}}; }
  Result<Handle> parse2(InputSource& s, TransformContext& c) override { return {note("parse2 source", &s, &c), {}}; }
  void validate(const zkstring& n, const Handle& o, TransformContext& c) override { note("validate by", &n, &o, &c); }
  void validate(const Handle& o, TransformContext& c) override { note("validate", &o, &c); }
  Result<Handle> validate2(const zkstring& n, const Handle& o, TransformContext& c) override {
    return {note("validate2 by", &n, &o, &c), {}};
  }
  Result<Handle> validate2(const Handle& o, TransformContext& c) override { return {note("validate2", &o, &c), {}}; }
  Binary serialize(const Handle& o, TransformContext& c) override { return note("serialize", &o, &c), Binary(); }
  Result<Binary> serialize2(const Handle& o, TransformContext& c) override {
    return note("serialize2", &o, &c), Result<Binary>();
  }
  RawMessage serializeMessage(const Handle& o, TransformContext& c) override {
    return note("serializeMessage", &o, &c), RawMessage();
  }
  Result<RawMessage> serializeMessage2(const Handle& o, TransformContext& c) override {
    return note("serializeMessage2", &o, &c), Result<RawMessage>();
  }

  std::ostringstream calls;

 protected:
  template <class... Arguments>
  Handle note(const char* operation, Arguments... arguments) {
    calls << operation;
    ((calls << ' ' << arguments), ...);
    calls << '\n';
    return {};
  }
};

/// An internal message that does so.
class RecordingTransaction : public RecordingMessage<IInternalMessage> {
 public:
  DataObject* createNormalizedObject() override { return note("createNormalizedObject").get(); }
  void handleNormalizedObject(DataObject* o, TransformContext& c) override { note("handleNormalizedObject", o, &c); }
  Handle preprocess(const Handle& o, TransformContext& c) override { return note("preprocess", &o, &c); }
  Result<Handle> preprocess2(const Handle& o, TransformContext& c) override {
    return {note("preprocess2", &o, &c), {}};
  }
  Result<Handle> process2(const zkstring& n, const Handle& o, TransformContext& c) override {
    return {note("process2", &n, &o, &c), {}};
  }
  Handle postprocess(const Handle& o, TransformContext& c) override { return note("postprocess", &o, &c); }
  Handle process(const zkstring& n, const Handle& o, TransformContext& c) override {
    return note("process", &n, &o, &c);
  }
  Result<Handle> postprocess2(const Handle& o, TransformContext& c) override {
    return {note("postprocess2", &o, &c), {}};
  }
};

}  // namespace zarvik
