#pragma once

#include "Parsing.h"
#include "zkstring.h"

namespace zarvik {

/// Cuts a tag=value message into pairs, one at a time, with one pair of push-back: what the tokenizers of the
/// tag=value formats have in common. A format adds the class of its errors.
///
///     FIXTokenizer tokenizer(message, '\x01');
///     FIXTokenizer::TagValuePair pair;
///     while (tokenizer.next(pair)) use(pair.getTag(), pair.getValue());
///
/// The text is shared, not copied: the value of a pair is a view into the message and keeps it alive. Positions are
/// bytes from the start of the text, counted from 0. One thread at a time.
///
/// A field costs a few dozen instructions and no allocation; a loop that uses one pair for all fields counts no
/// reference either.
class TagValueTokenizer {
 public:
  class TagValuePair {
   public:
    TagValuePair() = default;
    TagValuePair(int tag, const zkstring& value) : tag(tag), value(value) {}

    int getTag() const { return tag; }
    const zkstring& getValue() const { return value; }
    const zkstring& toString() const { return value; }
    int toInt() const { return Parsing::parseInt(value); }  ///< throws what the reader of whole numbers throws

   private:
    friend class TagValueTokenizer;
    int tag = 0;
    zkstring value;
  };

  /// Reads the next field into `pair`; false, with `pair` untouched, at the end of the text.
  /// Throws the format's parsing error for a field without '=', and TransformException for a tag that is no number; the
  /// tokenizer then stands behind that field, and `pair` is untouched.
  bool next(TagValuePair& pair);

  /// Reads a data field, whose value is `dataLength` bytes long and may hold the delimiter. Besides the errors of
  /// `next` the format's parsing error when a pair is pushed back, and for a length that does not lead to a delimiter
  /// within the text; the tokenizer then stands behind the '='.
  bool nextDataTag(TagValuePair& pair, int dataLength);

  /// `next` will give this pair again. There is one slot: a second pair replaces the first.
  void pushBack(const TagValuePair& pair) {
    pushedPair = pair;
    hasPushedPair = true;
    quickEnd = 0;
  }

  /// Throws the format's parsing error "Unexpected tag <tag>" unless all fields are read; the field is then pushed
  /// back.
  void assertEmpty();

  int getCurrentIndex() const { return static_cast<int>(currentIndex); }  ///< where the next field begins

  /// Where the next pair stands, for error reports: of a pair that is pushed back what `getTokenIndex` says.
  int getNextTokenIndex() const { return hasPushedPair ? getTokenIndex(pushedPair) : getCurrentIndex(); }
  /// Odd on purpose: three bytes before the value, however long the tag is. The value is a view of this text.
  int getTokenIndex(const TagValuePair& pair) const { return static_cast<int>(text.distance(pair.value)) - 3; }

 protected:
  /// `delimiter` ends a field; the last field may lack it.
  TagValueTokenizer(const zkstring& text, char delimiter);
  // Copies alone: a tokenizer that is moved from goes on as before.
  TagValueTokenizer(const TagValueTokenizer& other) = default;
  TagValueTokenizer& operator=(const TagValueTokenizer& other) = default;
  virtual ~TagValueTokenizer() = default;

 private:
  [[noreturn]] virtual void fail(const zkstring& message) const = 0;  ///< throws the format's parsing error
  virtual const char* formatName() const = 0;

  bool hasMoreTokens() const { return currentIndex < text.length(); }
  bool nextByTheBook(TagValuePair& pair);
  // Step over the next token and give its size in bytes.
  unsigned int nextToken();
  unsigned int nextToken(int dataLength);
  void split(unsigned int start, unsigned int size, TagValuePair& pair) const;

  unsigned int currentIndex = 0;  ///< where the next field begins
  unsigned int quickEnd;  ///< fields that begin before this may be read the quick way; 0 while a pair is pushed back
  zkstring text;
  char delimiters[16];  ///< the delimiter, as often as a window has bytes
  bool hasPushedPair = false;
  TagValuePair pushedPair;
};

}  // namespace zarvik
