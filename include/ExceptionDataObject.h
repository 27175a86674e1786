#pragma once

#include <array>

#include "AbstractDataObject.h"
#include "ExceptionObject.h"
#include "Properties.h"

namespace zarvik {

/// An error as a record of seven fields, with any number of named texts beside them: what a flow maps, validates and
/// writes like any other message.
///
/// The stages that an error passes stamp the context properties: `fillPhase` and `fillErrorType` leave what an inner
/// stage has set, the setters overwrite. The words for it are those of ExceptionObject. One that a handler keeps is a
/// clone with count 0: whoever holds the list puts it into a SmartPtr, or deletes it.
class ExceptionDataObject : public AbstractDataObject, public ExceptionObject {
 public:
  static const zkstringliteral THIS_TYPE;
  static bool instanceOf(const zkstring& type) { return type == THIS_TYPE; }
  static DataObjectMetaInfo* metaInfo();

  ExceptionDataObject();  ///< all fields null
  ExceptionDataObject(const ExceptionDataObject& other);
  ExceptionDataObject& operator=(const ExceptionDataObject& other);

  // The fields. A getter throws FieldNullException while its field is null.
  const zkstring& getType() const { return getText(TYPE); }
  void setType(const zkstring& value) { setText(TYPE, value); }
  const zkstring& getMessage() const override { return getText(MESSAGE); }
  virtual void setMessage(const zkstring& value) { setText(MESSAGE, value); }
  const zkstring& getErrorCode() const { return getText(ERROR_CODE); }
  void setErrorCode(const zkstring& value) { setText(ERROR_CODE, value); }
  const zkstring& getSeverity() const { return getText(SEVERITY); }
  void setSeverity(const zkstring& value) { setText(SEVERITY, value); }
  bool getCascadable() const;
  void setCascadable(bool value);  ///< for readers of the error alone: no handler looks at it
  const zkstring& getFFieldName() const { return getText(FIELD_NAME); }
  void setFFieldName(const zkstring& value) { setText(FIELD_NAME, value); }
  const zkstring& getFieldID() const { return getText(FIELD_ID); }
  void setFieldID(const zkstring& value) { setText(FIELD_ID, value); }

  zkstring getContextProperty(const zkstring& name) const;               ///< empty if there is none
  void setContextProperty(const zkstring& name, const zkstring& value);  ///< an empty value removes the property
  const Properties& getContextProperties() const { return contextProperties; }

  zkstring getPhase() const { return getContextProperty(getERROR_PHASE()); }
  zkstring getErrorPhase() const { return getPhase(); }
  void setPhase(const zkstring& phase) { setContextProperty(getERROR_PHASE(), phase); }
  void setErrorPhase(const zkstring& phase) { setPhase(phase); }
  void fillPhase(const zkstring& phase) { fill(getERROR_PHASE(), phase); }
  zkstring getErrorType() const { return getContextProperty(getERROR_TYPE()); }
  void setErrorType(const zkstring& type) { setContextProperty(getERROR_TYPE(), type); }
  void fillErrorType(const zkstring& type) { fill(getERROR_TYPE(), type); }
  int getLine() const { return getNumber(getLINE()); }  ///< of the input; -1 when unknown
  void setLine(int line) { setNumber(getLINE(), line); }
  int getColumn() const { return getNumber(getCOLUMN()); }  ///< -1 when unknown
  void setColumn(int column) { setNumber(getCOLUMN(), column); }

  Object* clone() const override;
  /// The fields that are not null, and behind them the context properties in the order of their names, unescaped.
  zkstring toXMLString() override { return toXMLString(0); }
  zkstring toXMLString(int indent) override;  ///< the same, all of it further in by `indent` tabs
  zkstring getRootXMLTag() override;

 protected:
  /// The fields by index.
  enum Field : unsigned char { TYPE, MESSAGE, ERROR_CODE, SEVERITY, CASCADABLE, FIELD_NAME, FIELD_ID, FIELD_COUNT };

  using AbstractDataObject::getField0;
  Object* getField0(int index, Object* reuse) const override;
  void setField0(int index, const Object* value) override;

 private:
  const zkstring& getText(Field field) const {
    ensureNotNull(field);
    return texts[field];
  }
  void setText(Field field, const zkstring& value) {
    texts[field] = value;
    setNotNull(field);
  }
  void fill(const zkstring& name, const zkstring& value) {
    if (getContextProperty(name).empty()) setContextProperty(name, value);
  }
  int getNumber(const zkstring& name) const;
  void setNumber(const zkstring& name, int value);

  bool flags[FIELD_COUNT] = {};
  bool cascadable = false;
  std::array<zkstring, FIELD_COUNT> texts;  ///< by field; that of CASCADABLE stays empty
  Properties contextProperties;
};

}  // namespace zarvik
