#include "ValidationRules.h"

#include "BusinessProcessingRules.h"
#include "FieldsValidationRules.h"
#include "IFieldProcessing.h"
#include "IFieldValidation.h"
#include "IInvokable.h"
#include "Living.h"
#include "NormalizedObjectValidationRules.h"
#include "ObjectFactory.h"
#include "ObjectList.h"
#include "ProcessingRules.h"
#include "Reporting.h"
#include "Support.h"
#include "TransformContext.h"
#include "UserClassManager.h"

namespace zarvik {
namespace {

/// Rules whose every step notes its name and whether the context is there, and reads the errors to make from `next`.
template <class Base>
struct Noting : Base {
  void note(const char* step, DataObject* /*object*/) {
    steps += step;
    if (this->getTransformContext() != expected) steps += " without context";
    steps += " ";
    report(next, ExceptionHandler::DRACONIAN_EXCEPTION_HANDLER);
  }
  bool between() const { return this->getTransformContext() == nullptr; }

  TransformContext* expected = nullptr;
  std::string steps;
  std::string next;
};

struct Whole : Noting<ValidationRules> {
  using ValidationRules::validate;
  void validate(DataObject* o) override { note("validate", o); }
};
struct Parts : Noting<FieldsValidationRules> {
  void validateData0(DataObject* /*header*/, DataObject* o) override { note("data", o); }
  void validateHeader0(DataObject* o) override { note("header", o); }
  void validateTrailer0(DataObject* o) override { note("trailer", o); }
};
struct Four : Noting<ProcessingRules> {
  using ProcessingRules::checkNotNull;
  using ProcessingRules::postprocess;
  using ProcessingRules::preprocess;
  using ProcessingRules::validate;
  void preprocess(DataObject* o) override { note("preprocess", o); }
  void postprocess(DataObject* o) override { note("postprocess", o); }
  void validate(DataObject* o) override { note("validate", o); }
  void checkNotNull(DataObject* o) override { note("checkNotNull", o); }
};
struct One : Noting<BusinessProcessingRules> {
  using BusinessProcessingRules::process;
  void process(DataObject* o) override { note("process", o); }
};

/// Runs `operation` twice, once with a step that throws.
template <class Rules, class Operation>
void expectFrame(const char* steps, const char* firstStep, const char* errorType, Operation operation) {
  Rules rules;
  TransformContext context;
  rules.expected = &context;
  operation(rules, context);
  EXPECT_EQ(rules.steps, steps);
  EXPECT_TRUE(rules.between());
  rules.steps.clear();
  rules.next = "?";
  EXPECT_EQ(outcome([&] { operation(rules, context); }), std::string("throws ?  ") + errorType);
  EXPECT_EQ(rules.steps, firstStep);
  EXPECT_TRUE(rules.between());
}

TEST(ValidationRules, runInAContextThatGoesWithTheRun) {
  DataObject* const o = nullptr;
  expectFrame<Whole>("validate ", "validate ", "", [&](auto& r, auto& c) { r.validate(o, c); });
  expectFrame<Parts>("header ", "header ", "Validation", [&](auto& r, auto& c) { r.validateHeader(o, c); });
  expectFrame<Parts>("data ", "data ", "Validation", [&](auto& r, auto& c) { r.validateData(o, o, c); });
  expectFrame<Parts>("trailer ", "trailer ", "Validation", [&](auto& r, auto& c) { r.validateTrailer(o, c); });
  expectFrame<Four>("preprocess validate postprocess checkNotNull ", "preprocess ", "Processing",
                    [&](auto& r, auto& c) { r.process(o, c); });
  expectFrame<Four>("preprocess ", "preprocess ", "", [&](auto& r, auto& c) { r.preprocess(o, c); });
  expectFrame<Four>("validate ", "validate ", "", [&](auto& r, auto& c) { r.validate(o, c); });
  expectFrame<Four>("postprocess ", "postprocess ", "", [&](auto& r, auto& c) { r.postprocess(o, c); });
  expectFrame<Four>("checkNotNull ", "checkNotNull ", "", [&](auto& r, auto& c) { r.checkNotNull(o, c); });
  expectFrame<One>("process ", "process ", "Processing", [&](auto& r, auto& c) { r.process(o, c); });
  TransformContext context;
  BusinessProcessingRules().process(nullptr, context);
}

/// A user's class of all kinds, which tells what it is given.
struct Custom : Living<IFieldValidation> {
  bool validate(const zkstring& argument, const Object* value, DataObject* object) override {
    return nameOf(object) == "name" && argument == "argument" && value->getInt() == 7;
  }
};
struct CustomProcessing : Living<IFieldProcessing> {
  Object* process(const zkstring& argument, DataObject* object) override {
    return new StringObject(argument + nameOf(object).c_str());
  }
};
struct CustomFunction : Living<IInvokable> {
  Object* invoke(const ObjectList& arguments, TransformContext& /*context*/) override {
    return new StringObject(arguments.get(0)->getString() + "!");
  }
};

TEST(ValidationRules, makeEachUserClassOnce) {
  const UserClass validation("RulesTest.validation", new GenericObjectFactory<Custom>);
  const UserClass processing("RulesTest.processing", new GenericObjectFactory<CustomProcessing>);
  const UserClass function("RulesTest.function", new GenericObjectFactory<CustomFunction>);
  struct Validating : Whole {
    using Whole::customValidation;
    using Whole::invokeCustomExternalClass;
  };
  struct Processing : Four {
    using Four::customFieldProcessing;
  };
  struct BusinessProcessing : One {
    using One::customFieldProcessing;
  };
  struct Normalized : NormalizedObjectValidationRules {
    using NormalizedObjectValidationRules::customValidation;
    void validate0(DataObject* /*object*/) override {}
  };
  const SmartPtr<TestRecord> record = recordOf("name");
  TransformContext context;
  {
    Validating validating;
    Processing four;
    BusinessProcessing one;
    Normalized normalized;
    const auto text = [](Object* value) { return textOf(SmartPtr<Object>(value)->getString()); };
    IntObject seven(7);
    IntObject eight(8);
    for (int time = 0; time < 2; ++time) {
      EXPECT_TRUE(validating.customValidation("RulesTest.validation", &seven, "argument", record.get()));
      EXPECT_FALSE(normalized.customValidation("RulesTest.validation", &eight, "argument", record.get()));
      EXPECT_EQ(text(four.customFieldProcessing("RulesTest.processing", "a ", record.get())), "a name");
      EXPECT_EQ(text(one.customFieldProcessing("RulesTest.processing", "b ", record.get())), "b name");
      EXPECT_EQ(text(validating.invokeCustomExternalClass("RulesTest.function", "call", context)), "call!");
    }
    EXPECT_EQ(Custom::alive, 2);
    EXPECT_EQ(CustomProcessing::alive, 2);
    EXPECT_EQ(CustomFunction::alive, 1);
    EXPECT_EQ(errorOf<TransformException>(
                  [&] { validating.customValidation("RulesTest.function", nullptr, "", record.get()); }),
              "Error creating custom class instance - RulesTest.function is not of expected type");
  }
  EXPECT_EQ(Custom::alive + CustomProcessing::alive + CustomFunction::alive, 0);
}

struct Throwing : Whole {
  template <class... Arguments>
  void invalid(const Arguments&... arguments) const {
    throwFieldInvalid(arguments...);
  }
};

TEST(ValidationRules, tellWhatIsInvalid) {
  struct Normalized : NormalizedObjectValidationRules {
    using NormalizedObjectValidationRules::throwFieldInvalid;
    void validate0(DataObject* /*object*/) override {}
  };
  const Throwing rules;
  const Normalized normalized;
  const SmartPtr<TestRecord> record(new TestRecord);
  TestRecord* const leg = record->add(record->legs, nullptr);
  const auto thrown = [](auto operation) {
    try {
      operation();
    } catch (const FieldValidationException& error) {
      const zkstring properties[] = {error.getMessage(),
                                     error.getFFieldName(),
                                     error.getErrorCode(),
                                     error.getSeverity(),
                                     error.getCascadable() ? "cascadable" : "final",
                                     error.getErrorType(),
                                     error.getContextProperty("Internal-Code")};
      std::string text;
      for (const zkstring& property : properties) text += textOf(property) + "|";
      return text;
    }
    return std::string();
  };
  const auto full = [&](const char* message, DataObject* object, int index) {
    return thrown([&] { rules.invalid(message, "Rule", "E1", "warn", false, object, index); });
  };
  const std::string all = "E1|warn|final|Validation|Rule|";
  EXPECT_EQ(full("text", leg, 1), "text|1st Leg.No of|" + all);
  EXPECT_EQ(full("", leg, 1), "Validation 'Rule' failed. Field '1st Leg.No of' is not valid|1st Leg.No of|" + all);
  EXPECT_EQ(full("", nullptr, 99), "Validation 'Rule' failed. Field '' is not valid||" + all);
  EXPECT_EQ(full("text", leg, 99), "Validation 'Rule' failed. Unrecognized Field.|||fatal|cascadable|||");
  EXPECT_EQ(thrown([&] { rules.invalid("Rule", "E1", "warn", false, record.get(), 1); }),
            "Validation 'Rule' failed. Field 'No of' is not valid|No of|" + all);
  const std::string plain = "Validation 'Rule' failed. Field 'F' is not valid|F||fatal|cascadable|||";
  EXPECT_EQ(thrown([&] { rules.invalid("Rule", "F"); }), plain);
  EXPECT_EQ(thrown([&] { normalized.throwFieldInvalid("Rule", "F"); }), plain);
}

}  // namespace
}  // namespace zarvik
