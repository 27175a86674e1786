#include "ValidationRules.h"

#include "Reporting.h"

namespace zarvik {
namespace {

/// Rules whose steps note their names and the mode that the context tells, and throw in the mode "?".
template <class Base>
struct Noting : Base {
  void note(const char* step) {
    const std::string mode = told(this->getTransformContext()->getProperty("mode"));
    steps += step + mode + " ";
    report(mode, nullptr);
  }
  bool isBetweenRuns() const { return this->getTransformContext() == nullptr; }
  std::string steps;
};
struct Whole : Noting<ValidationRules> {
  void validate(DataObject* /*object*/) override { note("validate"); }
};
struct Parts : Noting<FieldsValidationRules> {
  void validateData0(DataObject* /*header*/, DataObject* /*data*/) override { note("data"); }
  void validateHeader0(DataObject* /*header*/) override { note("header"); }
  void validateTrailer0(DataObject* /*trailer*/) override { note("trailer"); }
};
struct Four : Noting<ProcessingRules> {
  using ProcessingRules::customFieldProcessing;
  void preprocess(DataObject* /*object*/) override { note("pre"); }
  void postprocess(DataObject* /*object*/) override { note("post"); }
  void validate(DataObject* /*object*/) override { note("validate"); }
  void checkNotNull(DataObject* /*object*/) override { note("check"); }
};
struct One : Noting<BusinessProcessingRules> {
  void process(DataObject* /*object*/) override { note("process"); }
};

TEST(ValidationRules, runInAContextThatGoesWithTheRun) {
  const auto test = [](auto rules, const std::string& steps, const char* type, auto operation) {
    TransformContext context;
    for (const char* mode : {"", "?"}) {
      context.setProperty("mode", mode);
      EXPECT_EQ(outcome([&] { operation(rules, context); }), *mode == 0 ? "done" : std::string("throws ?  ") + type);
      EXPECT_TRUE(rules.isBetweenRuns());
    }
    EXPECT_EQ(rules.steps, steps);
  };
  test(Whole(), "validate validate? ", "", [](ValidationRules& r, auto& c) { r.validate(nullptr, c); });
  test(Parts(), "header header? ", "Validation", [](auto& r, auto& c) { r.validateHeader(nullptr, c); });
  test(Parts(), "data data? ", "Validation", [](auto& r, auto& c) { r.validateData(nullptr, nullptr, c); });
  test(Parts(), "trailer trailer? ", "Validation", [](auto& r, auto& c) { r.validateTrailer(nullptr, c); });
  test(Four(), "pre validate post check pre? ", "Processing",
       [](ProcessingRules& r, auto& c) { r.process(nullptr, c); });
  test(Four(), "pre pre? ", "", [](ProcessingRules& r, auto& c) { r.preprocess(nullptr, c); });
  test(Four(), "validate validate? ", "", [](ProcessingRules& r, auto& c) { r.validate(nullptr, c); });
  test(Four(), "post post? ", "", [](ProcessingRules& r, auto& c) { r.postprocess(nullptr, c); });
  test(Four(), "check check? ", "", [](ProcessingRules& r, auto& c) { r.checkNotNull(nullptr, c); });
  test(One(), "process process? ", "Processing", [](BusinessProcessingRules& r, auto& c) { r.process(nullptr, c); });
}

struct Seven : Living<IFieldValidation> {
  bool validate(const zkstring& argument, const Object* value, DataObject* object) override {
    return told(object) == "name" && argument == "argument" && value->getInt() == 7;
  }
};
struct Joined : Living<IFieldProcessing> {
  Object* process(const zkstring& argument, DataObject* object) override {
    return new StringObject(argument + told(object).c_str());
  }
};
struct Shout : Living<IInvokable> {
  Object* invoke(const ObjectList& arguments, TransformContext& /*context*/) override {
    return new StringObject(arguments[0]->getString() + "!");
  }
};

struct Open : Whole {
  using Whole::customValidation;
  using Whole::invokeCustomExternalClass;
  template <class... Arguments>
  void invalid(const Arguments&... arguments) const {
    throwFieldInvalid(arguments...);
  }
};
struct Normalized : NormalizedObjectValidationRules {
  using NormalizedObjectValidationRules::customValidation;
  using NormalizedObjectValidationRules::throwFieldInvalid;
  void validate0(DataObject* /*object*/) override {}
};

TEST(ValidationRules, makeEachUserClassOnce) {
  UserClassManager::registerClass("Seven", new GenericObjectFactory<Seven>);
  UserClassManager::registerClass("Joined", new GenericObjectFactory<Joined>);
  UserClassManager::registerClass("Shout", new GenericObjectFactory<Shout>);
  const SmartPtr<TestRecord> record(TestRecord::named("name"));
  TransformContext context;
  {
    Open rules;
    Normalized normalized;
    Four four;
    const auto text = [](Object* value) { return SmartPtr<Object>(value)->getString(); };
    IntObject value(7);
    for (int time = 0; time < 2; ++time) {
      EXPECT_TRUE(rules.customValidation("Seven", &value, "argument", record.get()));
      EXPECT_FALSE(normalized.customValidation("Seven", &value, "other", record.get()));
      EXPECT_EQ(text(four.customFieldProcessing("Joined", "a ", record.get())), "a name");
      EXPECT_EQ(text(rules.invokeCustomExternalClass("Shout", "call", context)), "call!");
    }
    EXPECT_EQ(Seven::alive + Joined::alive + Shout::alive, 2 + 1 + 1);
    EXPECT_EQ(errorOf<TransformException>([&] { rules.customValidation("Shout", nullptr, "", record.get()); }),
              "Error creating custom class instance - Shout is not of expected type");
  }
  EXPECT_EQ(Seven::alive + Joined::alive + Shout::alive, 0);
}

TEST(ValidationRules, tellWhatIsInvalid) {
  const Open rules;
  const SmartPtr<TestRecord> record(new TestRecord);
  TestRecord* const leg = record->add(record->legs, nullptr);
  const auto thrown = [](auto operation) {
    try {
      operation();
    } catch (const FieldValidationException& error) {
      return told(error.getMessage() + "|" + error.getFFieldName() + "|" + error.getErrorCode() + "|" +
                  error.getSeverity() + (error.getCascadable() ? "|cascadable|" : "|final|") + error.getErrorType() +
                  "|" + error.getContextProperty("Internal-Code"));
    }
    return std::string();
  };
  const auto full = [&](const char* message, DataObject* object, int index) {
    return thrown([&] { rules.invalid(message, "Rule", "E1", "warn", false, object, index); });
  };
  const std::string all = "E1|warn|final|Validation|Rule";
  EXPECT_EQ(full("text", leg, 1), "text|1st Leg.No of|" + all);
  EXPECT_EQ(full("", leg, 1), "Validation 'Rule' failed. Field '1st Leg.No of' is not valid|1st Leg.No of|" + all);
  EXPECT_EQ(full("", nullptr, 99), "Validation 'Rule' failed. Field '' is not valid||" + all);
  EXPECT_EQ(full("text", leg, 99), "Validation 'Rule' failed. Unrecognized Field.|||fatal|cascadable||");
  EXPECT_EQ(thrown([&] { rules.invalid("Rule", "E1", "warn", false, record.get(), 1); }),
            "Validation 'Rule' failed. Field 'No of' is not valid|No of|" + all);
  const std::string plain = "Validation 'Rule' failed. Field 'F' is not valid|F||fatal|cascadable||";
  EXPECT_EQ(thrown([&] { rules.invalid("Rule", "F"); }), plain);
  EXPECT_EQ(thrown([&] { Normalized().throwFieldInvalid("Rule", "F"); }), plain);
}

}  // namespace
}  // namespace zarvik
