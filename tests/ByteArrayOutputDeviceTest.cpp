#include "ByteArrayOutputDevice.h"

#include <new>

#include "Support.h"

namespace zarvik {
namespace {

const DeviceInfo info("device", "source", "format");

/// All that `device` holds, which is read in each of its ways.
std::string textOf(ByteArrayOutputDevice& device) {
  int length = -1;
  int again = -1;
  const char* const bytes = device.getAsBytes(length);
  EXPECT_EQ(device.getAsString(again), bytes);
  EXPECT_EQ(again, length);
  EXPECT_EQ(device.getLength(), length);
  EXPECT_EQ(device.getAsString()[length], '\0');
  return {bytes, static_cast<std::size_t>(length)};
}

TEST(ByteArrayOutputDevice, doublesItsBlockAndKeepsEveryByte) {
  ByteArrayOutputDevice fresh(info);
  ByteArrayOutputDevice roomy(info, 4);
  std::string expected;
  int freshCapacity = 0;
  int roomyCapacity = 4;
  for (int count : {0, 3, 3, 0, 1, 1, 40, 23, 1}) {
    const std::string piece(static_cast<std::size_t>(count), static_cast<char>('a' + count));
    for (int* capacity : {&freshCapacity, &roomyCapacity}) {
      const int needed = static_cast<int>(expected.size()) + count;
      if (needed > *capacity) *capacity = std::max(needed + 1, *capacity * 2);
    }
    fresh.write(count != 0 ? piece.data() : nullptr, count);
    roomy.write(piece.data(), count);
    expected += piece;
    EXPECT_EQ(textOf(fresh), expected);  // before the next write: the terminator stands in reserve
    EXPECT_EQ(textOf(roomy), expected);
    EXPECT_EQ(fresh.getCapacity(), freshCapacity);
    EXPECT_EQ(roomy.getCapacity(), roomyCapacity);
  }
  fresh.write(fresh.getAsString(), fresh.getLength());  // its own bytes
  EXPECT_EQ(textOf(fresh), expected + expected);
  EXPECT_THROW(fresh.write("x", std::numeric_limits<int>::max()), std::bad_array_new_length);
  EXPECT_EQ(textOf(fresh), expected + expected);
  fresh.close();
  fresh.clear();
  EXPECT_EQ(textOf(fresh) + std::to_string(fresh.getCapacity()), "0");
}

TEST(OutputContext, keepsADeviceForEveryOutput) {
  TransformContext context;
  context.createOutputContext();
  const SmartPtr<IOutputContext> output = context.getOutputContext();
  const SmartPtr<ContextOutputProtocol> protocol(new ContextOutputProtocol);
  for (const char* name : {"a", "b", "a"}) {
    DeviceInfo named(name, "source", name);
    OutputDevice* const device = protocol->createDevice(named, context);
    device->write(name, 1);
    EXPECT_EQ(device, output->getOutputDevices().back());
  }
  EXPECT_EQ(output->getOutputDevice("a"), output->getOutputDevices()[0]);
  EXPECT_EQ(output->getOutputDevice("b")->getDeviceInfo().getMessageIdentifier(), "source");
  EXPECT_EQ(output->getOutputDevice("b")->getDeviceInfo().getOutputFormatName(), "b");
  EXPECT_EQ(output->getOutputDevice("c"), nullptr);
  EXPECT_EQ(output->getOutputNames().toString(), "[a, b, a]");
  EXPECT_EQ(output->getOutputCount(), 3);
  context.createOutputContext();
  EXPECT_EQ(output->getOutputCount(), 0);
  EXPECT_EQ(output->getOutputDevice("a"), nullptr);
}

}  // namespace
}  // namespace zarvik
