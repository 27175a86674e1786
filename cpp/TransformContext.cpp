#include "TransformContext.h"

#include "Exceptions.h"
#include "IOutputContextImpl.h"
#include "PropertyLookup.h"
#include "ThrowFrom.h"

namespace zarvik {
namespace {

constexpr char here[] = "cpp/TransformContext";
}  // namespace

constinit const zkstringliteral TransformContext::INPUT_FORMAT_PROPERTY("input.format");
constinit const zkstringliteral TransformContext::INPUT_SOURCE_PROPERTY("input.source");
constinit const zkstringliteral TransformContext::INPUT_MODE_PROPERTY("input.mode");
constinit const zkstringliteral TransformContext::INPUT_BATCH_CONTEXT_PROPERTY("input.batch.context");
constinit const zkstringliteral TransformContext::INPUT_BATCH_ID_PROPERTY("input.batch.id");
constinit const zkstringliteral TransformContext::INPUT_BATCH_SIZE_PROPERTY("input.batch.size");
constinit const zkstringliteral TransformContext::OUTPUT_DESTINATION_PROPERTY("output.destination");
constinit const zkstringliteral TransformContext::DEFAULT_OUTPUT_DESTINATION_PROPERTY("output.destination.default");
constinit const zkstringliteral TransformContext::OUTPUT_FORMAT_PROPERTY("output.format");
constinit const zkstringliteral TransformContext::OUTPUT_PROTOCOL_PROPERTY("output.protocol");
constinit const zkstringliteral TransformContext::OUTPUT_DEVICE_PROPERTY("output.device");
constinit const zkstringliteral TransformContext::OUTPUT_FORMAT_SUFFIX("output.format.suffix");
constinit const zkstringliteral TransformContext::BATCH_MODE("batch");
constinit const zkstringliteral TransformContext::RECORD_MODE("record");

constinit TransformContext TransformContext::EMPTY;

TransformContext::~TransformContext() = default;

TransformContext& TransformContext::operator=(const TransformContext& other) {
  if (this == &other) return *this;
  propertyMap = other.propertyMap;
  objectPropertyMap = other.objectPropertyMap;
  outputContext = other.outputContext;
  return *this;
}

void TransformContext::setContextProperty(const zkstring& name, const zkstring& value) { setProperty(name, value); }

void TransformContext::setProperty(const zkstring& name, const zkstring& value) {
  getPropertyMap().insert_or_assign(name, value);
}

void TransformContext::setObjectProperty(const zkstring& name, Object* value) {
  getObjectPropertyMap().put(name, value);
}

zkstring TransformContext::getProperty(const zkstring& name) {
  const zkstring* const value = findProperty(name);
  return value != nullptr ? *value : zkstring();
}

Object* TransformContext::getObjectProperty(const zkstring& name) {
  return objectPropertyMap.isNull() ? nullptr : objectPropertyMap->get(name);
}

void TransformContext::createOutputContext() {
  if (outputContext.isNull()) {
    outputContext = new IOutputContextImpl;
  } else {
    outputContext->clear();
  }
}

SmartPtr<IOutputContext> TransformContext::getOutputContext() {
  if (!outputContext.isNull()) return outputContext;
  throwFrom(here, TransformException("The transform context cannot accept output. Make sure that you call "
                                     "createOutputContext() on the TransformContext if output is expected"));
}

void TransformContext::copyTo(TransformContext& target) {
  if (&target == this) return;
  if (target.propertyMap.get() != propertyMap.get()) {
    if (!target.propertyMap.isNull()) target.propertyMap->clear();
    if (!propertyMap.isNull()) target.putAll(*propertyMap);
  }
  target.outputContext = outputContext;
}

void TransformContext::clear() {
  // Writes nothing where there is nothing, since EMPTY is shared by all threads.
  if (!propertyMap.isNull()) propertyMap->clear();
  if (!outputContext.isNull()) outputContext.release();
}

void TransformContext::putAll(const Properties& values) {
  if (!values.empty()) getPropertyMap().insert(values.begin(), values.end());
}

Properties& TransformContext::getPropertyMap() {
  if (propertyMap.isNull()) propertyMap = new Texts;
  return *propertyMap;
}

ObjectPtrMap<Object>& TransformContext::getObjectPropertyMap() {
  if (objectPropertyMap.isNull()) objectPropertyMap = new Objects;
  return *objectPropertyMap;
}

const zkstring* TransformContext::findProperty(const zkstring& name) const {
  return propertyMap.isNull() ? nullptr : zarvik::findProperty(*propertyMap, name);
}

void TransformContextWrapper::setTransformContext(TransformContext* context) {
  if (!context->leadsTo(*this)) transformContext = context;
}

bool TransformContextWrapper::leadsTo(const TransformContext& other) const {
  return this == &other || transformContext->leadsTo(other);
}

void TransformContextWrapper::setProperty(const zkstring& name, const zkstring& value) {
  TransformContext::setProperty(name, value);
}

zkstring TransformContextWrapper::getProperty(const zkstring& name) {
  const zkstring* const value = findProperty(name);
  return value != nullptr ? *value : transformContext->getProperty(name);
}

void TransformContextWrapper::createOutputContext() { transformContext->createOutputContext(); }

SmartPtr<IOutputContext> TransformContextWrapper::getOutputContext() { return transformContext->getOutputContext(); }

void TransformContextWrapper::clear() { transformContext->clear(); }

}  // namespace zarvik
