#include "orders/fix/MessageWriter.h"

#include "orders/As.h"

using namespace zarvik;

namespace orders {

void MessageWriter::writeHeader(DataObject* part, TransformContext& /*context*/) {
  auto& header = as<FIXHeader>(part);
  require(header, FIXHeader::BEGIN_STRING, 8);
  appendField("8", header.getBeginString());
  require(header, FIXHeader::MSG_TYPE, 35);
  appendField("35", header.getMsgType());
  require(header, FIXHeader::SENDER_COMP_ID, 49);
  appendField("49", header.getSenderCompID());
  require(header, FIXHeader::TARGET_COMP_ID, 56);
  appendField("56", header.getTargetCompID());
  if (header.isNotNull(FIXHeader::ON_BEHALF_OF_COMP_ID)) appendField("115", header.getOnBehalfOfCompID());
  if (header.isNotNull(FIXHeader::DELIVER_TO_COMP_ID)) appendField("128", header.getDeliverToCompID());
  require(header, FIXHeader::MSG_SEQ_NUM, 34);
  appendField("34", header.getMsgSeqNum());
  if (header.isNotNull(FIXHeader::SENDER_SUB_ID)) appendField("50", header.getSenderSubID());
  if (header.isNotNull(FIXHeader::TARGET_SUB_ID)) appendField("57", header.getTargetSubID());
  require(header, FIXHeader::SENDING_TIME, 52);
  appendField("52", header.getSendingTime());
}

void MessageWriter::writeTrailer(DataObject* /*trailer*/, TransformContext& /*context*/) {
  // The engine adds body length and checksum, and there is nothing else.
}

void MessageWriter::appendData(const char* lengthTag, const char* dataTag, const Binary& value) {
  if (value.empty()) return;
  appendField(lengthTag, static_cast<int>(value.length()));
  appendField(dataTag, value.toASCIIString());
}

void MessageWriter::appendPortions(const char* countTag, const Group<Portion>& group, const char* idTag,
                                   const char* quantityTag) {
  const int count = group.getElementCount();
  if (count == 0) return;
  appendField(countTag, count);
  for (int i = 0; i < count; ++i) {
    const Portion& portion = group.at(i);
    appendField(idTag, portion.getID());
    if (portion.isNotNull(Portion::QUANTITY)) appendField(quantityTag, portion.getQuantity());
  }
}

void MessageWriter::appendParties(const char* countTag, const Group<Party>& group, const char* idTag,
                                  const char* sourceTag, const char* roleTag) {
  const int count = group.getElementCount();
  if (count == 0) return;
  appendField(countTag, count);
  for (int i = 0; i < count; ++i) {
    const Party& party = group.at(i);
    appendField(idTag, party.getID());
    if (party.isNotNull(Party::SOURCE)) appendField(sourceTag, party.getSource());
    if (party.isNotNull(Party::ROLE)) appendField(roleTag, party.getRole());
  }
}

}  // namespace orders
