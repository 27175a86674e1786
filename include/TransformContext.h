#pragma once

#include "IOutputContext.h"
#include "Object.h"
#include "ObjectPtrMap.h"
#include "Properties.h"
#include "SmartPtr.h"

namespace zarvik {

/// The bag that travels with one request through every processing call: texts by name, objects by name, and the
/// collector of output made in memory. Properties tell a far-away step what to do.
///
///     TransformContext context;
///     context.setProperty(TransformContext::OUTPUT_DEVICE_PROPERTY, "memory");
///     context.createOutputContext();
///
/// A context costs three null pointers until something is set; reading allocates nothing. One thread at a time.
class TransformContext : public Object {
 public:
  static const zkstringliteral INPUT_FORMAT_PROPERTY;  ///< name of the input format
  static const zkstringliteral INPUT_SOURCE_PROPERTY;  ///< name of the input's origin; "MessageID" in identification
  static const zkstringliteral INPUT_MODE_PROPERTY;    ///< `BATCH_MODE` or `RECORD_MODE`
  static const zkstringliteral INPUT_BATCH_CONTEXT_PROPERTY;         ///< for hosts and generated code, as are
  static const zkstringliteral INPUT_BATCH_ID_PROPERTY;              ///< the other keys of batches
  static const zkstringliteral INPUT_BATCH_SIZE_PROPERTY;            ///< number of messages in the batch
  static const zkstringliteral OUTPUT_DESTINATION_PROPERTY;          ///< read by triggers
  static const zkstringliteral DEFAULT_OUTPUT_DESTINATION_PROPERTY;  ///< for hosts and generated code
  static const zkstringliteral OUTPUT_FORMAT_PROPERTY;               ///< name of the output format
  static const zkstringliteral OUTPUT_PROTOCOL_PROPERTY;             ///< name of the output protocol
  static const zkstringliteral OUTPUT_DEVICE_PROPERTY;  ///< name under which the output's protocol is bound
  static const zkstringliteral OUTPUT_FORMAT_SUFFIX;    ///< for hosts and generated code
  static const zkstringliteral BATCH_MODE;
  static const zkstringliteral RECORD_MODE;

  /// A context without properties for those who need one and have none. It may be read on all threads; nobody writes
  /// to it or creates output in it.
  static TransformContext EMPTY;

  constexpr TransformContext() = default;
  TransformContext(const TransformContext& other) = default;
  /// Shares the properties and the output of `other`, so that changes on either side show on both. `copyTo` copies.
  TransformContext& operator=(const TransformContext& other);
  ~TransformContext() override;

  /// As `setProperty`, to which it leads, also where a subclass overrides that.
  virtual void setContextProperty(const zkstring& name, const zkstring& value);
  virtual void setProperty(const zkstring& name, const zkstring& value);  ///< an empty value is kept as an entry

  /// Keeps one reference on `value` (may be null): an object that is not counted is owned from here on. The object
  /// before it loses its reference first, so the same object is set again only by somebody who holds it too.
  virtual void setObjectProperty(const zkstring& name, Object* value);
  virtual zkstring getProperty(const zkstring& name);       ///< empty if absent
  virtual Object* getObjectProperty(const zkstring& name);  ///< null if absent; stays the context's own

  virtual void createOutputContext();  ///< clears the output context that is there, or makes one
  /// Throws TransformException if there is none.
  virtual SmartPtr<IOutputContext> getOutputContext();

  /// Gives `target` a copy of the texts in place of its own, and shares the output context with it. Objects are not
  /// copied, and those of the target stay.
  virtual void copyTo(TransformContext& target);
  virtual void clear();  ///< drops the texts and lets go of the output context; objects stay

  void putAll(const Properties& values);  ///< adds the texts whose names are not there yet

 protected:
  Properties& getPropertyMap();                  ///< made on first use
  ObjectPtrMap<Object>& getObjectPropertyMap();  ///< made on first use

  /// The text of `name`, null if absent; valid until the next change.
  const zkstring* findProperty(const zkstring& name) const;

 private:
  /// Counted, so that an assigned context may share it.
  class Texts : public ObjectRef, public Properties {};
  class Objects : public ObjectRef, public ObjectPtrMap<Object> {};

  friend class TransformContextWrapper;
  /// Whether a question to this context may come to `other`.
  virtual bool leadsTo(const TransformContext& other) const { return this == &other; }

  SmartPtr<Texts> propertyMap;
  SmartPtr<Objects> objectPropertyMap;
  SmartPtr<IOutputContext> outputContext;
};

/// Lays a private set of properties over another context, which stays untouched by them.
///
/// Texts are read from the overlay first and from the wrapped context where the overlay lacks the name; an empty text
/// in the overlay hides the wrapped one. Output, and `clear`, are the wrapped context's: `clear` leaves the overlay.
/// Object properties and `copyTo` are the overlay's alone. The wrapped context belongs to others and outlives the
/// wrapper; a copy wraps the same.
class TransformContextWrapper : public TransformContext {
 public:
  constexpr TransformContextWrapper() : transformContext(&EMPTY) {}
  constexpr TransformContextWrapper(TransformContext* context) : transformContext(context) {}  ///< not null

  TransformContext* getTransformContext() { return transformContext; }
  /// `context` is not null. One that leads back to the wrapper is ignored: a route may come to the same trigger again
  /// within one call, and the wrapper then keeps what it wraps.
  void setTransformContext(TransformContext* context);

  void setProperty(const zkstring& name, const zkstring& value) override;
  zkstring getProperty(const zkstring& name) override;
  void createOutputContext() override;
  SmartPtr<IOutputContext> getOutputContext() override;
  void clear() override;

 private:
  bool leadsTo(const TransformContext& other) const override;

  TransformContext* transformContext;
};

}  // namespace zarvik
