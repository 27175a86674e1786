#pragma once

#include "Exceptions.h"
#include "date/DateTime.h"
#include "fix/FIXHeader.h"
#include "fix/FIXInputParser.h"
#include "fix/FIXTokenizer.h"
#include "orders/Group.h"
#include "orders/Party.h"
#include "orders/Portion.h"
#include "orders/fix/FIXTrailer.h"
#include "orders/fix/Version.h"

namespace orders {

/// A message around `body`, which it takes over, with an empty header and an empty trailer; the caller's, with count 0.
zarvik::ExternalObject* newMessage(zarvik::DataObject* body);

/// What the parsers of the cartridge's FIX messages share: header, trailer, groups, and fields by their type.
///
/// A parser of one message supplies a switch over the tags of its body, and the check of what must be there. Values are
/// views into the message; nothing is copied.
class MessageParser : public zarvik::FIXInputParser {
 public:
  explicit MessageParser(Version version) : version(version) {}

  using InputParser::parse;
  /// The parts of `message` are there, and empty. Errors tell the column and leave the parts half filled.
  void parse(zarvik::ExternalObject* message, const zarvik::Binary& bytes, zarvik::TransformContext& context) override;
  zarvik::ExternalObject* parse(const zarvik::Binary& bytes, zarvik::TransformContext& context) override;

 protected:
  using Record = zarvik::AbstractDataObject;
  using Tokenizer = zarvik::FIXTokenizer;
  using Field = zarvik::FIXTokenizer::TagValuePair;

  virtual zarvik::DataObject* createBody() const = 0;
  /// Stores the fields of the body; the first that is not of this message is pushed back.
  virtual void parseBody(zarvik::DataObject& body, Tokenizer& tokenizer) = 0;
  virtual void checkBody(zarvik::DataObject& body) = 0;  ///< throws for what is missing

  static bool isUserDefined(const Field& field) { return field.getTag() >= 5000; }  ///< ours to step over
  bool is44() const { return version == Version::FIX44; }

  // The value of `field`, which must not be empty, and the first of its tag in `record`.
  const zarvik::zkstring& text(Record& record, int index, const Field& field) {
    assertTagNew(&record, index, field.getTag());
    FIXInputParser::ensureNotNull(field.getValue(), &record, index);
    return field.getValue();
  }
  char character(Record& record, int index, const Field& field);
  int integer(Record& record, int index, const Field& field);
  static int wholeNumber(const zarvik::zkstring& value);  ///< throws for what is not one, or does not fit
  double number(Record& record, int index, const Field& field);
  zarvik::DateTime timestamp(Record& record, int index, const Field& field);
  zarvik::DateTime date(Record& record, int index, const Field& field);
  /// The bytes of the data field `dataTag`, whose length `field` tells.
  zarvik::Binary data(Record& record, int index, Field& field, int dataTag, Tokenizer& tokenizer);

  // The repeating groups that more than one message has, by the tags of an element; `field` has the number of elements.
  struct PortionTags {
    int id, quantity;
  };
  struct PartyTags {
    int id, source, role;
  };
  void takePortions(Group<Portion>& group, Field& field, const PortionTags& tags, Tokenizer& tokenizer);
  void takeParties(Group<Party>& group, Field& field, const PartyTags& tags, Tokenizer& tokenizer);

  /// Fills `group`, whose elements each begin with the tag `first`; `field` has their number. `takeElementField` stores
  /// `field` in an element; where it answers false, the group ends.
  template <class Element, class TakeElementField>
  void takeGroup(Group<Element>& group, Field& field, int first, Tokenizer& tokenizer,
                 TakeElementField takeElementField) {
    const Field count = field;
    const int expected = wholeNumber(count.getValue());
    assertSectionEmpty(&group, count.getTag());
    Element* element = nullptr;
    while (tokenizer.next(field)) {
      if (field.getTag() == first) element = &group.add();
      if (element == nullptr || !takeElementField(*element)) {
        tokenizer.pushBack(field);
        break;
      }
    }
    if (group.getElementCount() != expected) throwWrongCount(count, group.getElementCount());
  }

 private:
  void parseHeader(zarvik::FIXHeader& header, Tokenizer& tokenizer);
  void checkHeader(zarvik::FIXHeader& header);
  void parseTrailer(FIXTrailer& trailer, Tokenizer& tokenizer);
  [[noreturn]] static void throwWrongCount(const Field& count, int found);

  const Version version;
};

}  // namespace orders
