#pragma once

#include "ArrayList.h"
#include "Binary.h"

namespace zarvik {

class InputSource;

/// Cuts a block of bytes into lines, which end with LF or with CR LF; a CR alone is an ordinary byte.
///
///     LineReader reader(source, true);
///     while (reader.hasMoreLines()) parseLine(reader.getNextLine());
///
/// A line end at the end of the data makes no further, empty line. The lines are views into one copy of the data, or
/// into the bytes of a Binary, made once by the constructor in time linear in the data.
class LineReader {
 public:
  /// With `hasTrailer`, the last line is set apart and is not among those that are read.
  LineReader(InputSource& source, bool hasTrailer);
  LineReader(const Binary& bytes, bool hasTrailer);
  LineReader(const char* bytes, int length, bool hasTrailer);

  /// The next line. Up to two lines past the last one are there and empty; nobody reads on from there.
  zkstring getNextLine() { return lines.at(static_cast<unsigned int>(position++)); }
  bool hasMoreLines() const { return position < lineCount; }
  void pushBackLine() {  ///< a line has been read
    assert(position > 0);
    --position;
  }
  const zkstring& getTrailerLine() const { return trailerLine; }
  int getLastLineNumber() const { return position; }  ///< of the line last read, from 1; 0 before the first
  void reset() { position = 0; }

 private:
  void split(const zkstring& data);

  ArrayList<zkstring> lines;  ///< with two empty ones behind the last
  int position = 0;           ///< of the next line
  int lineCount = 0;
  bool hasTrailer;
  zkstring trailerLine;
};

}  // namespace zarvik
