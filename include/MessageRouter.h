#pragma once

#include <map>
#include <memory>
#include <vector>

#include "IInputFormat.h"
#include "ILookupContext.h"
#include "MessageConfiguration.h"
#include "MessageIdentificationService.h"
#include "Object.h"
#include "SmartPtr.h"

namespace zarvik {

class InputSource;
class TransformContext;

/// The entry of raw inputs: learns what an input is, picks the first row that takes it, puts the row's properties into
/// the context and hands the input to the format that the row names under "input.format".
///
///     MessageRouter router;
///     router.addMessageConfiguration(orders);
///     router.processMessage(source, context);
///
/// The router keeps one instance of each input format that it has used. A stream of messages of one format costs the
/// match and the copying of the row's properties; the registry is asked once per format name. Rows are tried one after
/// the other, each header field being read at most once, but for those that rows name by `setProperty`.
///
/// A router serves one thread at a time, its `const` operations included.
class MessageRouter : public Object {
 public:
  /// Owns `service` from here on; without one it asks the default service, which nobody owns.
  MessageRouter(MessageIdentificationService* service = nullptr);
  MessageRouter(const MessageRouter&) = delete;
  MessageRouter& operator=(const MessageRouter&) = delete;
  ~MessageRouter() override;

  /// Appends a row; rows are tried in the order of addition. The router owns `configuration` from here on.
  void addMessageConfiguration(MessageConfiguration* configuration);
  void clear();  ///< deletes all rows; the input formats in use and the identification service stay

  /// Owns `service` from here on, so it is not the default service. The one before goes if it was owned.
  void setMessageIdentificationService(MessageIdentificationService* service);
  /// Leaves the router without a service: no input is recognised until the next one is set.
  void clearMessageIdentificationService();

  bool onInit();  ///< true on the first call only: whoever gets true adds the rows

  /// The row that takes the input: never null, owned by the router. Throws UnrecognizedMessageException for an input
  /// that no identifier knows, UnhandledMessageException for a message that no row takes.
  MessageConfiguration* getMessageConfiguration(InputSource& source) const;

  /// Processes one input. Throws what `getMessageConfiguration` throws, and TransformException for a row without
  /// "input.format": the context is then untouched. From there on, the row's properties stay set whatever happens,
  /// and each TransformException leaves with the severity "fatal": NamingException for a format name that is not
  /// bound, and the errors of the format itself. After a failed look-up the next message starts anew: one of a name
  /// used before goes to the instance kept for that name.
  void processMessage(InputSource& source, TransformContext& context) const;
  void processMessage(InputSource& source) const;  ///< in a new context, which goes with what it collected

 private:
  IInputFormat& resolveInputFormat(const zkstring& name) const;

  MessageIdentificationService* identificationService;
  std::vector<std::unique_ptr<MessageConfiguration>> configurations;
  bool initialized = false;
  SmartPtr<ILookupContext> lookupContext;
  mutable zkstring currentInputFormatName;            ///< of the format used last
  mutable SmartPtr<IInputFormat> currentInputFormat;  ///< null before the first message and after a failed look-up
  mutable std::map<zkstring, SmartPtr<IInputFormat>> inputFormatCache;
  bool ownsIdentificationService;
};

}  // namespace zarvik
