#include <zarvikrt.h>

#include <cstdio>

using namespace zarvik;

struct Text : InputSource {
  const char* getAsBytes(int& length) override { return length = 5, "hello"; }
};

int main() {
  MessageRouter router(new MessageIdentificationService());
  Text text;
  try {
    router.processMessage(text);
  } catch (const TransformException& error) {
    std::printf("routed by nobody: %s\n", error.getMessage().c_str());
  }
}
