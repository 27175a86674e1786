#pragma once

#include "HeaderRecord.h"

namespace zarvik {

class DateTime;

/// The standard header of a FIX message: what the identifier reads from the raw text, so that routing can decide on
/// format, version, type and parties.
///
///     FIXHeader header;
///     header.parseHeader(bytes, length);
///     if (header.getMsgType() == "D") ...
///
/// Nothing is validated, neither body length nor checksum. The texts are views into one copy of the message, which
/// lives as long as any of them. Getters throw FieldNullException for a field without value.
class FIXHeader : public HeaderRecord<FIXHeader, 14, 1U << 4 | 1U << 10> {
 public:
  /// The fields by index.
  enum Field : int {
    MESSAGE_FORMAT,
    MESSAGE_VERSION,
    MESSAGE_TYPE,
    BEGIN_STRING,
    BODY_LENGTH,
    MSG_TYPE,
    SENDER_COMP_ID,
    TARGET_COMP_ID,
    ON_BEHALF_OF_COMP_ID,
    DELIVER_TO_COMP_ID,
    MSG_SEQ_NUM,
    SENDER_SUB_ID,
    TARGET_SUB_ID,
    SENDING_TIME,
    FIELD_COUNT
  };

  FIXHeader();  ///< all fields are null but for the format, "FIX"
  FIXHeader(const FIXHeader& other) = default;
  FIXHeader& operator=(const FIXHeader& other) = default;

  static DataObjectMetaInfo* metaInfo();

  /// Reads `length` bytes as FIXHeaderParser does, with its errors; fields read before an error are set.
  void parseHeader(const char* text, int length);

  zkstring getHeaderField(const zkstring& name) const { return textByName(name); }  ///< empty for null

  const zkstring& getMessageFormat() const { return text(MESSAGE_FORMAT); }
  void setMessageFormat(const zkstring& value) { setText(MESSAGE_FORMAT, value); }
  const zkstring& getMessageVersion() const { return text(MESSAGE_VERSION); }
  void setMessageVersion(const zkstring& value) { setText(MESSAGE_VERSION, value); }
  const zkstring& getMessageType() const { return text(MESSAGE_TYPE); }
  void setMessageType(const zkstring& value) { setText(MESSAGE_TYPE, value); }
  const zkstring& getBeginString() const { return text(BEGIN_STRING); }
  void setBeginString(const zkstring& value);  ///< the version becomes what stands behind the first four bytes
  int getBodyLength() const { return number(BODY_LENGTH); }
  void setBodyLength(int value) { setNumber(BODY_LENGTH, value); }
  const zkstring& getMsgType() const { return text(MSG_TYPE); }
  void setMsgType(const zkstring& value);  ///< the message type becomes the same
  const zkstring& getSenderCompID() const { return text(SENDER_COMP_ID); }
  void setSenderCompID(const zkstring& value) { setText(SENDER_COMP_ID, value); }
  const zkstring& getTargetCompID() const { return text(TARGET_COMP_ID); }
  void setTargetCompID(const zkstring& value) { setText(TARGET_COMP_ID, value); }
  const zkstring& getOnBehalfOfCompID() const { return text(ON_BEHALF_OF_COMP_ID); }
  void setOnBehalfOfCompID(const zkstring& value) { setText(ON_BEHALF_OF_COMP_ID, value); }
  const zkstring& getDeliverToCompID() const { return text(DELIVER_TO_COMP_ID); }
  void setDeliverToCompID(const zkstring& value) { setText(DELIVER_TO_COMP_ID, value); }
  int getMsgSeqNum() const { return number(MSG_SEQ_NUM); }
  void setMsgSeqNum(int value) { setNumber(MSG_SEQ_NUM, value); }
  const zkstring& getSenderSubID() const { return text(SENDER_SUB_ID); }
  void setSenderSubID(const zkstring& value) { setText(SENDER_SUB_ID, value); }
  const zkstring& getTargetSubID() const { return text(TARGET_SUB_ID); }
  void setTargetSubID(const zkstring& value) { setText(TARGET_SUB_ID, value); }
  const zkstring& getSendingTime() const { return text(SENDING_TIME); }
  void setSendingTime(const zkstring& value) { setText(SENDING_TIME, value); }  ///< `parseHeader` steps over it
  void setSendingTime(const DateTime& value);  ///< as FIXType::formatUTCTimestamp writes it; allocates the first time

 private:
  [[noreturn]] void throwOutOfBounds(int index) const override;
};

}  // namespace zarvik
