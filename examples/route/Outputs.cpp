#include "Outputs.h"

#include <filesystem>

#include "ContextOutputProtocol.h"
#include "LookupContextFactory.h"
#include "ObjectFactory.h"
#include "Rows.h"
#include "Show.h"
#include "orders/Cartridge.h"
#include "orders/Names.h"

using namespace zarvik;

namespace route {

Outputs::Outputs(const std::string& folder) {
  const SmartPtr<ILookupContext> registry = LookupContextFactory::getLookupContext();
  orders::install(folder);
  if (folder.empty()) {
    for (const char* const device : devices()) registry->rebind(device, new ContextOutputProtocol);
    registry->rebind(orders::FILES, new ContextOutputProtocol);
    registry->rebind(orders::ORDER_MESSAGE, new GenericObjectFactory<ShownOrder>);
    return;
  }
  std::filesystem::create_directories(folder);
  for (const char* const device : devices()) {
    SmartPtr<DeviceFile>& file = files[device];
    file = new DeviceFile(folder + "/" + device);
    registry->rebind(device, file.get());
  }
}

std::map<std::string, long> Outputs::finish() {
  std::map<std::string, long> outputs;
  for (const auto& [device, file] : files) {
    file->flush();
    if (file->getOutputs() != 0) outputs[device] = file->getOutputs();
  }
  return outputs;
}

}  // namespace route
