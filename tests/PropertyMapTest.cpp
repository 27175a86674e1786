#include <cmath>
#include <stdexcept>

#include "PropertyMapDelegate.h"
#include "Support.h"
#include "WildcardRule.h"

namespace zarvik {
namespace {

struct Counted : ObjectRef {
  zkstring toString() const override { return zkstringliteral("counted"); }
};

SmartPtr<PropertyMapImpl> mapOf(std::initializer_list<const char*> names) {
  SmartPtr<PropertyMapImpl> map(new PropertyMapImpl);
  for (const char* name : names) map->setIntProperty(name, 1);
  return map;
}

std::string namesOf(const StringList& names) { return names.toString().c_str(); }

/// A delegate in the shape that classes with properties have.
struct Delegate : PropertyMapDelegate {
  using PropertyMapDelegate::getPropertyNames;
  float getFloatProperty(const zkstring& name, float value) override {
    return PropertyMapDelegate::getProperties()->getFloatProperty(name, value);
  }
  void setFloatProperty(const zkstring& name, float value) override {
    PropertyMapDelegate::getProperties()->setFloatProperty(name, value);
  }
  StringList getPropertyNames(PropertyNameFilter& filter) override {
    return PropertyMapDelegate::getProperties()->getPropertyNames(filter);
  }
};

/// The values of one property, by every getter, as one text. The defaults are all -1, "?" and 1970.
std::string readsOf(IPropertyMap& map, const char* name) {
  std::string reads;
  const auto add = [&reads](const auto& value) { reads += value + std::string(" "); };
  add(std::to_string(map.getIntProperty(name, -1)));
  add(std::to_string(map.getLongProperty(name, -1)));
  add(std::to_string(std::lround(map.getFloatProperty(name, -1) * 10.0)));
  add(std::to_string(std::lround(map.getDoubleProperty(name, -1) * 10)));
  add(std::to_string(map.getBooleanProperty(name, true)) + std::to_string(map.getBooleanProperty(name, false)));
  add(map.getStringProperty(name, "?").c_str());
  return reads;
}

void readsEachKindAsItsNeighboursDo(IPropertyMap& map) {
  map.setIntProperty("int", 12);
  map.setLongProperty("long", 5000000000);
  map.setFloatProperty("float", 2.5F);
  map.setDoubleProperty("double", 0.5);
  map.setBooleanProperty("bool", false);
  map.setStringProperty("text", "12");
  map.setStringProperty("truth", "TRUE");
  map.setDateProperty("date", DateTime(2020, 2, 29, 1, 2, 3, 0));
  map.setProperty("other", new Counted);
  EXPECT_EQ(readsOf(map, "int"), "12 12 120 120 11 12 ");
  EXPECT_EQ(readsOf(map, "long"), "705032704 5000000000 50000000000 50000000000 11 5000000000 ");
  EXPECT_EQ(readsOf(map, "float"), "2 2 25 25 11 2.5 ");
  EXPECT_EQ(readsOf(map, "double"), "0 0 5 5 00 0.5 ");
  EXPECT_EQ(readsOf(map, "bool"), "-1 -1 -10 -10 00 false ");
  EXPECT_EQ(readsOf(map, "date"), "-1 -1 -10 -10 10 2020-02-29T01:02:03.000 ");
  EXPECT_EQ(readsOf(map, "other"), "-1 -1 -10 -10 10 counted ");
  EXPECT_EQ(readsOf(map, "missing"), "-1 -1 -10 -10 10 ? ");
  EXPECT_EQ(map.getIntProperty("text", -1), 12);
  EXPECT_EQ(map.getDoubleProperty("text", -1), 12);
  EXPECT_TRUE(map.getBooleanProperty("truth", false));
  EXPECT_THROW(map.getIntProperty("truth", -1), TransformException);
  const DateTime other(1970, 1, 1, 0, 0, 0, 0);
  EXPECT_EQ(map.getDateProperty("date", other), DateTime(2020, 2, 29, 1, 2, 3, 0));
  EXPECT_EQ(map.getDateProperty("text", other), other);
}

TEST(PropertyMap, readsEachKindAsItsNeighboursDo) {
  const SmartPtr<PropertyMapImpl> store(new PropertyMapImpl);
  readsEachKindAsItsNeighboursDo(*store);
  readsEachKindAsItsNeighboursDo(*store->getProperties("below"));
  EXPECT_TRUE(store->hasProperty("below.date"));
  EXPECT_EQ(store->getPropertyCount(), 18);
  const SmartPtr<Delegate> delegate(new Delegate);
  readsEachKindAsItsNeighboursDo(*delegate);
  EXPECT_EQ(delegate->PropertyMapDelegate::getProperties()->getPropertyCount(), 9);
}

TEST(PropertyMap, keepsNamesInTheirFirstOrder) {
  const SmartPtr<PropertyMapImpl> map = mapOf({"b", "a", "c"});
  ObjectRef::releaseRef(map->getProperty("b"));  // a value that is replaced is its taker's
  map->setStringProperty("b", "new");
  EXPECT_EQ(namesOf(map->getPropertyNames()), "[b, a, c]");
  map->setProperty("a", nullptr);
  map->removeProperty("none");
  EXPECT_EQ(namesOf(map->getPropertyNames()), "[b, c]");
  EXPECT_FALSE(map->hasProperty("a"));
  Object* const spare = map->getProperty("c");
  EXPECT_EQ(map->getProperty("a", spare), spare);
  EXPECT_EQ(map->getEntry(map->getEntryIndex("b")).toString(), "b=new");
  EXPECT_THROW(map->getEntry(2), std::out_of_range);
  EXPECT_THROW(map->getEntry(-1), std::out_of_range);
}

TEST(PropertyMap, givesUpReferencesOnlyByRemovalAndItsEnd) {
  const SmartPtr<Counted> value(new Counted);
  const auto countAfter = [&value](auto action) {
    const SmartPtr<PropertyMapImpl> map(new PropertyMapImpl);
    map->setProperty("a.b", value.get());
    action(*map);
    const int count = value->getRefCount();
    while (value->getRefCount() > 1 && !map->hasProperty("a.b")) value->decRef();
    return count;
  };
  EXPECT_EQ(countAfter([](IPropertyMap2&) {}), 2);
  EXPECT_TRUE(value->unique());
  EXPECT_EQ(countAfter([](IPropertyMap2& map) { map.removeProperty("a.b"); }), 1);
  EXPECT_EQ(countAfter([](IPropertyMap2& map) { map.clear("a"); }), 2);
  EXPECT_EQ(countAfter([](IPropertyMap2& map) { map.clearProperties(); }), 2);
  EXPECT_EQ(countAfter([](IPropertyMap2& map) { map.getProperties("a")->clearProperties(); }), 2);
  EXPECT_EQ(countAfter([](IPropertyMap2& map) { map.getProperties("a")->removeProperty("b"); }), 1);
  EXPECT_EQ(countAfter([&](IPropertyMap2& map) { map.setProperty("a.b", value.get()); }), 3);
  value->decRef();
}

TEST(PropertyMap, viewsTheNamesBelowADot) {
  SmartPtr<PropertyMapImpl> map = mapOf({"a.b", "ab", "a.c.d", "x"});
  const SmartPtr<IPropertyMap> view = map->getProperties("a");
  EXPECT_EQ(namesOf(view->getPropertyNames()), "[b, c.d]");
  EXPECT_EQ(view->getPropertyCount(), 2);
  const SmartPtr<IPropertyMap> deeper = view->getProperties("c");
  deeper->setIntProperty("e", 7);
  EXPECT_EQ(map->getIntProperty("a.c.e", 0), 7);
  EXPECT_EQ(namesOf(deeper->getPropertyNames()), "[d, e]");
  WildcardFilter filter("a.c*");
  EXPECT_EQ(namesOf(view->getPropertyNames(filter)), "[a.b, c.d, c.e]");  // what it rejects stays, in full
  EXPECT_EQ(namesOf(map->getPropertyNames(filter)), "[a.c.d, a.c.e]");

  auto& view2 = dynamic_cast<IPropertyMap2&>(*view);
  EXPECT_EQ(namesOf(view2.getNames("c")), "[c.d, c.e]");
  EXPECT_EQ(view2.getEntries("c")[1].getName(), "a.c.e");
  for (const char* name : {"a.b", "a.c.d", "a.c.e"}) ObjectRef::releaseRef(map->getProperty(name));
  view2.clear("c");
  EXPECT_EQ(namesOf(map->getPropertyNames()), "[a.b, ab, x]");
  ObjectRef::releaseRef(map->getProperty("ab"));
  map->clear("a");  // no dot added
  EXPECT_EQ(namesOf(map->getPropertyNames()), "[x]");
  map.release();
  EXPECT_EQ(view->getPropertyCount(), 0);  // it keeps the map
}

TEST(PropertyMap, putsSharedOrClonedValues) {
  const SmartPtr<PropertyMapImpl> from = mapOf({"plain"});
  from->setProperty("counted", new Counted);
  const SmartPtr<PropertyMapImpl> to(new PropertyMapImpl);
  to->getProperties("p")->putProperties(from.get());
  to->putProperties(from.get());
  EXPECT_EQ(namesOf(to->getPropertyNames()), "[p.plain, p.counted, plain, counted]");
  EXPECT_EQ(to->getProperty("counted"), from->getProperty("counted"));
  EXPECT_NE(to->getProperty("plain"), from->getProperty("plain"));
}

TEST(PropertyMap, allocatesNothingWhileItIsEmpty) {
  const zkstringliteral name("xaxabaab_");
  const SmartPtr<PropertyMapImpl> map(new PropertyMapImpl);
  WildcardFilter filter(zkstringliteral("*a*b*?"));
  const Allocations allocations;
  EXPECT_EQ(map->getIntProperty(name, 3), 3);
  map->removeProperty(name);
  map->clearProperties();
  EXPECT_TRUE(filter.accept(name));
  EXPECT_EQ(allocations.count(), 0);
}

TEST(WildcardFilter, acceptsByItsRule) {
  constexpr std::tuple<const char*, const char*, bool> rows[] = {
      {"", "", true},       {"", "a", false},    {"abc", "abc", true},   {"abc", "abcd", false}, {"abc", "ABC", false},
      {"a*", "a", true},    {"**", "abc", true}, {"*ab", "abxab", true}, {"?b", "ab", false},    {"a?c", "abc", false},
      {"a*c", "abc", true}, {"a??*", "a", true}, {"a?", "ab", true},     {"*b?", "abbc", true}};
  for (const auto& [pattern, name, accepted] : rows) {
    EXPECT_EQ(WildcardFilter(pattern).accept(name), accepted) << pattern << " on " << name;
  }
}

/// All texts over `alphabet` of up to `length` bytes.
std::vector<std::string> textsOver(const std::string& alphabet, unsigned int length) {
  std::vector<std::string> texts(1);
  for (std::size_t i = 0; i < texts.size() && texts[i].size() < length; ++i) {
    for (const char c : alphabet) texts.push_back(texts[i] + c);
  }
  return texts;
}

TEST(WildcardFilter, agreesWithTheRuleOfTokensAndBackTracks) {
  const std::vector<std::string> names = textsOver("ab", 6);
  for (const std::string& pattern : textsOver("ab?*", 5)) {
    WildcardFilter filter(pattern.c_str());
    const WildcardRule rule(pattern);
    for (const std::string& name : names) {
      ASSERT_EQ(filter.accept(name.c_str()), rule.accepts(name)) << pattern << " on " << name;
    }
  }
}

}  // namespace
}  // namespace zarvik
