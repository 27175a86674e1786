#include "Logger.h"

#include "Support.h"

namespace zarvik {
namespace {

/// What `action` writes to standard output.
template <class Action>
std::string printed(Action action) {
  testing::internal::CaptureStdout();
  action();
  return testing::internal::GetCapturedStdout();
}

/// The lines that all eight operations write.
std::string linesOf(ILogger& logger) {
  return printed([&] {
    const Logger log(&logger);
    log.error("e");
    log.error(zkstring("E"));
    log.warn("w");
    log.warn(zkstring("W"));
    log.info("i");
    log.info(zkstring("I"));
    log.debug("d");
    log.debug(zkstring("D"));
    log.trace("t");
    log.trace(zkstring("T"));
  });
}

TEST(SimpleLogger, writesWhatItsLevelEnables) {
  const SmartPtr<SimpleLogger> logger(new SimpleLogger("x"));
  const std::string errors = "[ERROR] e\n[ERROR] E\n";
  const std::string warnings = errors + "[WARN] w\n[WARN] W\n";
  const std::string all = warnings + "[INFO] i\n[INFO] I\n";
  EXPECT_EQ(linesOf(*logger), "");
  logger->setLogLevel(V_LOG_ERROR);
  EXPECT_EQ(linesOf(*logger), errors);
  logger->setLogLevel(V_LOG_WARN);
  EXPECT_EQ(linesOf(*logger), warnings);
  logger->setLogLevel(static_cast<V_LOG_LEVEL>(4));
  EXPECT_EQ(linesOf(*logger), all);
  logger->setLogLevel(V_LOG_DEBUG);
  EXPECT_EQ(linesOf(*logger), all + "[DEBUG] d\n[DEBUG] D\n[DEBUG] t\n[DEBUG] T\n");
}

TEST(SimpleLogger, followsTheNearestAncestorWithALevel) {
  SimpleLogger root("", nullptr, V_LOG_INFO);
  SimpleLogger parent("a", &root);
  SimpleLogger child("b", &parent);
  EXPECT_TRUE(child.isLevelEnabled(V_LOG_INFO));
  EXPECT_FALSE(child.isLevelEnabled(V_LOG_DEBUG));
  root.setLogLevel(V_LOG_DEBUG);
  EXPECT_TRUE(child.isLevelEnabled(V_LOG_DEBUG));
  child.setLogLevel(V_LOG_ERROR);
  EXPECT_FALSE(child.isLevelEnabled(V_LOG_WARN));
  EXPECT_TRUE(parent.isLevelEnabled(V_LOG_WARN));
  root.setLogLevel(V_LOG_NONE);
  EXPECT_EQ(parent.getChainedLogLevel(), V_LOG_NONE);
}

TEST(SimpleLogger, endsAMessageAtItsFirstZeroAndAtItsOwnEnd) {
  SimpleLogger logger("x", nullptr, V_LOG_INFO);
  EXPECT_EQ(printed([&] { logger.info(zkstring("a\0b", 3)); }), "[INFO] a\n");
  EXPECT_EQ(printed([&] { logger.info(zkstringliteral("%s and more").substr(0, 2)); }), "[INFO] %s\n");
}

TEST(SimpleLogger, allocatesNothingForADisabledLevel) {
  SimpleLogger logger("x", nullptr, V_LOG_INFO);
  const zkstring text("a text");
  const Allocations allocations;
  logger.debug("a text");
  logger.debug(text.substr(2));
  EXPECT_EQ(allocations.count(), 0);
}

TEST(LogFactory, buildsTheTreeThatTheNameTells) {
  SimpleLogger* const root = SimpleLogger::getLogger(nullptr, "");
  SimpleLogger* const a = SimpleLogger::getLogger(root, "LoggerTest");
  SimpleLogger* const b = SimpleLogger::getLogger(a, "b");
  EXPECT_EQ(a->getCategoryName(), "LoggerTest");
  EXPECT_EQ(LogFactory::getLog("LoggerTest.b").getCategoryName(), "b");
  b->setLogLevel(V_LOG_DEBUG);  // seen through the factory, so it is the same logger
  EXPECT_TRUE(LogFactory::getLog("LoggerTest.b").isLevelEnabled(V_LOG_DEBUG));
  EXPECT_FALSE(LogFactory::getLog("LoggerTest.c").isLevelEnabled(V_LOG_DEBUG));
  EXPECT_TRUE(LogFactory::getLog("LoggerTest.b..c").isLevelEnabled(V_LOG_DEBUG));  // an empty segment inherits
  EXPECT_EQ(root->getChainedLogLevel(), V_LOG_INFO);
  root->setLogLevel(V_LOG_WARN);
  EXPECT_FALSE(LogFactory::getLog("").isLevelEnabled(V_LOG_INFO));
  EXPECT_FALSE(LogFactory::getRoot().isLevelEnabled(V_LOG_INFO));
  root->setLogLevel(V_LOG_INFO);
}

TEST(LoggingConstants, hangsItsLoggersBelowItsCategories) {
  const Logger logs[] = {LoggingConstants::getMessageFlowLog("x"), LoggingConstants::getMessageLog("x"),
                         LoggingConstants::getMappingLog("x")};
  const char* const categories[] = {"messageflow", "message", "mapping"};
  SimpleLogger* current = SimpleLogger::getLogger(nullptr, "");
  for (const char* segment : {"zarvik", "runtime"}) current = SimpleLogger::getLogger(current, segment);
  for (int i = 0; i < 3; ++i) {
    SimpleLogger* const category = SimpleLogger::getLogger(current, categories[i]);
    category->setLogLevel(V_LOG_DEBUG);
    EXPECT_TRUE(logs[i].isLevelEnabled(V_LOG_DEBUG)) << categories[i];
    category->setLogLevel(V_LOG_NONE);
    EXPECT_FALSE(logs[i].isLevelEnabled(V_LOG_DEBUG)) << categories[i];
  }
  EXPECT_EQ(LoggingConstants::getRuntimeLog().getCategoryName(), "runtime");
}

}  // namespace
}  // namespace zarvik
