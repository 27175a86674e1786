#pragma once

#include "AbstractRawMessage.h"

namespace zarvik {

/// A text as a raw message; shares it.
class StringInputSource : public AbstractRawMessage {
 public:
  StringInputSource(const zkstring& text) : text(text) {}

  const char* getAsBytes(int& length) override;
  using AbstractRawMessage::getAsString;
  zkstring getAsString(const zkstring& /*encoding*/) override { return text; }

 private:
  zkstring text;
};

}  // namespace zarvik
