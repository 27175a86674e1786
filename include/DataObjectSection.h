#pragma once

#include "zkstring.h"

namespace zarvik {

class DataObject;
class XMLTag;
class zkstringbuffer;

/// The least that can be asked of an ordered collection of records. Positions count from 0.
class DataObjectCollection {
 public:
  virtual ~DataObjectCollection() noexcept(false) = default;  // letting go of an element may report a wrong count

  virtual DataObject* getElement(int index) const = 0;
  virtual bool removeElement(int index) = 0;
  virtual void addElement(DataObject* element) = 0;  ///< counts it
  virtual int getElementIndex(DataObject* element) const = 0;
  virtual int getElementCount() const = 0;
};

/// A repeating group of a record, or a nested object, which is a group of at most one.
///
/// A section is a plain member of its owner, not counted; its elements are counted. Whoever fills it creates an
/// element, adds it, and then sets its fields.
class DataObjectSection : public DataObjectCollection {
 public:
  /// A new, empty element with this section as its parent; made by the owner, and not yet added.
  virtual DataObject* createElement() = 0;

 protected:
  friend class SectionObject;
  virtual zkstring toString() = 0;

 public:
  virtual zkstring getName() = 0;
  virtual zkstring getQualifiedName() = 0;    ///< the name behind those of the sections above, joined by "."
  virtual DataObject* getParent() const = 0;  ///< the owner
  virtual DataObject* getRootDataObject() const = 0;
  /// Throws SectionConstraintException when there are fewer or more elements than the bounds allow.
  virtual void assertConstraints() const = 0;
  virtual bool isEmpty() const = 0;      ///< whether all elements are empty
  virtual void removeLastElement() = 0;  ///< throws FieldNotFoundException without one
  virtual void clear() = 0;
  /// A deep copy without an owner, which is the caller's to set and to delete.
  virtual DataObjectSection* clone() const = 0;

  /// Fills `target` with the elements of `source`, which keeps them too; `target` becomes their parent.
  static void assign(DataObjectSection* target, DataObjectSection* source);

  /// The elements as XML, each within `tag` at `level` tabs.
  void appendXML(zkstringbuffer& out, const XMLTag& tag, int level) const;
};

}  // namespace zarvik
