#pragma once

#include <initializer_list>

#include "zkstring.h"

namespace zarvik {

/// An argument of a catalogue text: the text that stands for it.
class CatalogueArgument {
 public:
  CatalogueArgument(const zkstring& text) : text(text) {}
  CatalogueArgument(const char* text) : text(text) {}
  CatalogueArgument(int number);

  const zkstring& toString() const { return text; }

 private:
  zkstring text;
};

/// The text of the entry `key`, such as "SRT178", with its arguments in place; empty for an unknown key.
zkstring catalogueMessage(const char* key, std::initializer_list<CatalogueArgument> arguments = {});
/// The code of the entry `key`; empty for an unknown key.
zkstring catalogueCode(const char* key);

/// The one way from an entry of the catalogues to an exception: of class E, below TransformException, with the
/// entry's text and its code.
///
///     throwFrom(here, fromCatalogue<FieldNotFoundException>("SRT178", {sectionName}));
template <class E>
E fromCatalogue(const char* key, std::initializer_list<CatalogueArgument> arguments = {}) {
  E error(catalogueMessage(key, arguments));
  error.setErrorCode(catalogueCode(key));
  return error;
}

}  // namespace zarvik
