#include "FromCatalogue.h"

#include "Conversion.h"
#include "MessageFormatter.h"
#include "ObjectList.h"
#include "Resources.h"

namespace zarvik {

CatalogueArgument::CatalogueArgument(int number) : text(intToString(number)) {}

zkstring catalogueMessage(const char* key, std::initializer_list<CatalogueArgument> arguments) {
  ObjectList list;
  for (const CatalogueArgument& argument : arguments) list.add(argument.toString());
  return MessageFormatter::format(Resources::getProperty(zkstringliteral(key) + ".message"), list);
}

zkstring catalogueCode(const char* key) { return Resources::getProperty(zkstringliteral(key) + ".code"); }

}  // namespace zarvik
