#pragma once

#include "fix/FIXHeader.h"
#include "orders/Order.h"
#include "orders/fix/ExecutionReport.h"
#include "orders/fix/NewOrderSingle.h"
#include "orders/fix/Version.h"

namespace zarvik {
class TransformContext;
}

namespace orders {

// Between FIX messages and the normalised order. A field without value stays without. FIX codes that the house does not
// trade by throw FieldParsingException on the way in, and letters of the order that FIX has no code for do on the way
// out.

void toOrder(const zarvik::FIXHeader& header, Version version, const NewOrderSingle& message, Order& order);
/// The report becomes an execution of the order.
void toOrder(const zarvik::FIXHeader& header, Version version, const ExecutionReport& message, Order& order);

/// Sender and target are what the context says under SENDER_PROPERTY and TARGET_PROPERTY.
void fromOrder(const Order& order, Version version, const char* messageType, zarvik::TransformContext& context,
               zarvik::FIXHeader& header);
void fromOrder(Order& order, Version version, NewOrderSingle& message);
/// Of the order's last execution; FieldNotFoundException for an order that has none.
void fromOrder(Order& order, Version version, ExecutionReport& message);

}  // namespace orders
