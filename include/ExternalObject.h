#pragma once

#include "AbstractDataObject.h"

namespace zarvik {

/// The envelope of an external message: its header, its data and its trailer, all counted.
///
/// A part may be missing, but for the data where a text or a clone is asked for: without data both throw
/// ClassCastException.
class ExternalObject : public AbstractDataObject {
 public:
  ExternalObject();  ///< no parts, and three fields that are null
  ExternalObject(DataObject* header, DataObject* data, DataObject* trailer);

  DataObject* getHeader() const { return header.get(); }
  DataObject* getData() const { return data.get(); }
  DataObject* getTrailer() const { return trailer.get(); }
  /// Replaces all parts. No field is null from then on, even where a part is.
  void setExternalObjects(DataObject* newHeader, DataObject* newData, DataObject* newTrailer);

  Object* clone() const override;  ///< of all parts
  void reset() override;           ///< resets the parts, and leaves the fields as they are
  zkstring toXMLString() override;
  using AbstractDataObject::toXMLString;

  static DataObjectMetaInfo* metaInfo();  ///< the fields "Header", "Data" and "Trailer"

  /// The part itself, whether or not the field is null; null without one. Of the two forms this alone: filling a box
  /// with a part fails.
  Object* getField0(int index) const override;
  void setField0(int index, const Object* value) override;  ///< leaves the flag as it is

 protected:
  using AbstractDataObject::getField0;

 private:
  bool flags[3] = {};
  SmartPtr<DataObject> header;
  SmartPtr<DataObject> data;
  SmartPtr<DataObject> trailer;
};

}  // namespace zarvik
