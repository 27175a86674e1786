#pragma once

#include "ExceptionHandler.h"
#include "FieldInvalid.h"
#include "SmallStringMap.h"
#include "ThrowFrom.h"

namespace zarvik {

class DataObject;
class ObjectList;
class TransformContext;

/// What validation and processing rules have in common: the context of the run, the users' classes, and the errors of
/// invalid fields.
///
/// Generated steps report a violation by one of the `throwFieldInvalid`, and to go on after it hand the error to their
/// handler:
///
///     void validate(DataObject* order) override {
///       try {
///         if (!positive(order)) throwFieldInvalid("positive", "E17", "error", true, order, QUANTITY);
///       } catch (FieldValidationException& error) {
///         exceptionHandler->onException(&error);
///       }
///     }
///
/// A user's class is made once for each rules object, however often it is called. Rules serve one thread at a time.
class AbstractValidationRules {
 public:
  /// Begins a run: `context` is what `getTransformContext` gives until `teardown`. Every public operation with a
  /// context does both itself, also when a step throws.
  void setup(TransformContext& context) { transformContext = &context; }
  void teardown() { transformContext = nullptr; }

 protected:
  AbstractValidationRules() = default;
  ~AbstractValidationRules() = default;

  TransformContext* getTransformContext() const { return transformContext; }  ///< null between runs

  /// The result of the user's function `className`, which is the caller's.
  Object* invokeCustomExternalClass(const zkstring& className, const ObjectList& arguments, TransformContext& context);
  /// Whether the user's validation `className` accepts `value` (may be null), a field of `object`.
  bool customValidation(const zkstring& className, const Object* value, const zkstring& argument, DataObject* object);

  /// Tells the rule and the field, and sets neither an error type nor a code.
  [[noreturn]] void throwFieldInvalid(const zkstring& validationName, const zkstring& fieldName) const {
    throwFrom("include/AbstractValidationRules", fieldInvalid(validationName, fieldName));
  }
  /// Throws FieldValidationException with all that is given: `validationName` is its internal code, the qualified name
  /// of the field at `fieldIndex` of `object` its field; without an object the name is empty. An empty `message`
  /// stands for "Validation '<rule>' failed. Field '<field>' is not valid". A field that `object` does not have gives
  /// the text "Validation '<rule>' failed. Unrecognized Field." and nothing else.
  [[noreturn]] void throwFieldInvalid(const zkstring& message, const zkstring& validationName,
                                      const zkstring& errorCode, const zkstring& severity, bool cascadable,
                                      DataObject* object, int fieldIndex) const;
  [[noreturn]] void throwFieldInvalid(const zkstring& validationName, const zkstring& errorCode,
                                      const zkstring& severity, bool cascadable, DataObject* object,
                                      int fieldIndex) const;

  /// Runs `step` as a run of its own in `context`.
  template <class Step>
  void inContext(TransformContext& context, Step step) {
    struct Frame {
      ~Frame() { rules.teardown(); }
      AbstractValidationRules& rules;
    };
    setup(context);
    const Frame frame{*this};
    step();
  }

 private:
  // As the public ones, on an error that is there already: with an empty message it is left alone, and a new one made.
  [[noreturn]] void throwFieldInvalid(FieldValidationException& error, const zkstring& message,
                                      const zkstring& validationName, const zkstring& errorCode,
                                      const zkstring& severity, bool cascadable, DataObject* object,
                                      int fieldIndex) const;
  [[noreturn]] void throwFieldInvalid(FieldValidationException& error, const zkstring& validationName,
                                      const zkstring& errorCode, const zkstring& severity, bool cascadable,
                                      DataObject* object, int fieldIndex) const;

  TransformContext* transformContext = nullptr;  ///< not owned
  SmallStringMap fieldValidations;               ///< of IFieldValidation, by class name
  SmallStringMap invokables;                     ///< of IInvokable, by class name
};

}  // namespace zarvik
