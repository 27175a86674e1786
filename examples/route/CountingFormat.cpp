#include "CountingFormat.h"

#include "Fields.h"
#include "LineSource.h"
#include "TransformContext.h"

namespace route {

constinit const zarvik::zkstringliteral CountingFormat::FIELDS_PROPERTY("route.fields");

void CountingFormat::processInput(zarvik::InputSource& source, zarvik::TransformContext& context) {
  Fields fields(bytesOf(source));
  int count = 0;
  while (fields.next()) ++count;
  context.setProperty(FIELDS_PROPERTY, std::to_string(count).c_str());
}

}  // namespace route
