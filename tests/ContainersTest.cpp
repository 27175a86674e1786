// The four lists: VList, ObjectList, ArrayList and SmallStringMap.
#include "Allocations.h"
#include "ArrayList.h"
#include "BigDecimal.h"
#include "BigInteger.h"
#include "Binary.h"
#include "ObjectList.h"
#include "SmallStringMap.h"
#include "Support.h"
#include "VList.h"
#include "date/DateTime.h"

namespace zarvik {
namespace {

using IntList = VList<std::vector<int>, int>;
using BoolList = VList<SimpleDeque<bool>, bool>;

/// A counted object that tells by `alive` whether it still lives.
class Counted : public ObjectRef {
 public:
  Counted() { ++alive; }
  ~Counted() override { --alive; }
  zkstring toString() const override { return "counted"; }
  static inline int alive = 0;
};

template <class List, class... T>
List listOf(T... values) {
  List list;
  (list.add(values), ...);
  return list;
}

template <class Action>
std::string rangeErrorOf(Action action) {
  try {
    action();
  } catch (const std::out_of_range& error) {
    return error.what();
  }
  return "no error";
}

TEST(VList, printsEachTypeOfElement) {
  EXPECT_EQ(IntList().toString(), "[]");
  EXPECT_EQ((listOf<BoolList>(true, false).toString()), "[1, 0]");
  EXPECT_EQ((listOf<VList<std::vector<char>, char>>('a', ',').toString()), "[a, ,]");
  EXPECT_EQ((listOf<IntList>(1, -2).toString()), "[1, -2]");
  EXPECT_EQ((listOf<VList<std::vector<__int64>, __int64>>(__int64{1} << 40).toString()), "[1099511627776]");
  EXPECT_EQ((listOf<VList<std::vector<float>, float>>(0.1F).toString()), "[0.1]");
  EXPECT_EQ((listOf<VList<std::vector<double>, double>>(5.0, -0.5).toString()), "[5.0, -0.5]");
  EXPECT_EQ((listOf<StringList>("a", "", "b").toString()), "[a, , b]");
  EXPECT_EQ((listOf<VList<std::vector<Binary>, Binary>>(Binary("xy", 2)).toString()), "[xy]");
  EXPECT_EQ((listOf<VList<std::vector<BigInteger>, BigInteger>>(BigInteger("120")).toString()), "[120]");
  EXPECT_EQ((listOf<VList<std::vector<BigDecimal>, BigDecimal>>(BigDecimal("120")).toString()), "[120.0]");
  const DateTime date(2024, 2, 29, 0, 0, 0, 0);
  EXPECT_EQ((listOf<VList<std::vector<DateTime>, DateTime>>(date).toString()), "[Feb 29, 2024]");
}

TEST(VList, sharesItsElementsWithAllCopies) {
  IntList list;
  const Allocations allocations;
  for (int i = 0; i < 10; ++i) list.add(i);
  EXPECT_EQ(allocations.count(), 0);  // there is room for ten from the start
  list.clear();
  IntList assigned;
  assigned = list;
  const IntList copied(list);
  const SmartPtr<Object> cloned(list.clone());
  list.add(7);
  list = *&list;  // itself
  EXPECT_EQ(assigned.get(0), 7);
  EXPECT_TRUE(copied.equals(list));
  EXPECT_EQ(cloned->toString(), "[7]");
  IntList moved(std::move(list));
  EXPECT_EQ(moved.size(), 1);
  EXPECT_EQ(list.size(), 0);  // NOLINT(bugprone-use-after-move): moved from means empty and usable
  list.add(1);
  EXPECT_EQ(moved.size(), 1);
}

TEST(VList, comparesByTheFirstPairThatDiffers) {
  const IntList list = listOf<IntList>(1, 9);
  EXPECT_EQ(list.compareTo(listOf<IntList>(1)), 1);
  EXPECT_EQ(list.compareTo(listOf<IntList>(1, 9, 3, 4)), -2);
  EXPECT_EQ(list.compareTo(listOf<IntList>(2)), -1);
  EXPECT_EQ(list.compareTo(listOf<IntList>(1, 8, 7)), 1);
  EXPECT_TRUE(IntList().equals(IntList()));
  EXPECT_FALSE(list.equals(listOf<IntList>(1)));
}

TEST(VList, insertsAndRemoves) {
  IntList list = listOf<IntList>(1, 3);
  list.add(1, 2);
  list.add(3, 4);
  EXPECT_EQ(list.removeElementAt(0), 2);  // odd: what then stands there
  EXPECT_EQ(list.removeElementAt(2), 4);  // and at the end what was removed
  EXPECT_EQ(list.set(0, 8), 8);
  int array[] = {5, 6, 7};
  list.addAll(array, 1, 2).addAll(listOf<IntList>(1));
  EXPECT_EQ(list.toString(), "[8, 3, 6, 7, 1]");
  list.erase(list.getiteratorAt(1));
  EXPECT_EQ(std::vector<int>(list.begin(), list.end()), (std::vector<int>{8, 6, 7, 1}));
  EXPECT_EQ(list.indexOf(5), -1);
  EXPECT_EQ(list.lastIndexOf(8), 0);
  EXPECT_TRUE(list.intersects(listOf<IntList>(9, 1)) && !list.intersects(listOf<IntList>(9)));
  BoolList flags = listOf<BoolList>(true, false, true);
  EXPECT_FALSE(flags.removeElementAt(0));
  EXPECT_TRUE(flags.removeElementAt(1));
}

TEST(VList, checksPositions) {
  IntList list = listOf<IntList>(1, 2);
  for (const int index : {-1, 2}) {
    EXPECT_EQ(rangeErrorOf([&] { list.get(index); }), "invalid vector<T> subscript");
    EXPECT_EQ(rangeErrorOf([&] { list.set(index, 0); }), "invalid vector<T> subscript");
    EXPECT_EQ(rangeErrorOf([&] { list.removeElementAt(index); }), "invalid vector<T> subscript");
  }
  EXPECT_EQ(rangeErrorOf([] { BoolList().get(0); }), "invalid deque<T> subscript");
}

TEST(ObjectList, boxesWhatIsAdded) {
  ObjectList list;
  EXPECT_EQ(list.size(), 0);
  EXPECT_EQ(list.toString(), "");
  list.add(zkstring("text")).add("chars").add(1).add(__int64{2}).add(0.5F).add(1.5).add('c').add(true);
  list.add(BigDecimal("1.25")).add(BigInteger("7")).add(Binary("b", 1)).add(DateTime(2000, 1, 2, 3, 4, 5, 6));
  list.add(static_cast<Object*>(nullptr)).add(ObjectList(5));
  EXPECT_EQ(list.toString(), "text,chars,1,2,0.5,1.5,c,true,1.25,7,b,2000-01-02T03:04:05.006,null,5");
  EXPECT_EQ(list[3]->getObjectType(), "Long");
  EXPECT_EQ(list.get(12), nullptr);
  EXPECT_EQ(ObjectList("a", 1).toString(), "a,1");
  EXPECT_EQ(ObjectList(1, "a").toString(), "1,a");
  EXPECT_EQ(ObjectList("a", "b").toString(), "a,b");
}

TEST(ObjectList, sharesItsElementsWithAllCopies) {
  const ObjectList unused;
  ObjectList copied(unused);
  ObjectList assigned;
  assigned = copied;
  const SmartPtr<Object> cloned(unused.clone());
  copied.add(1);
  copied = *&copied;  // itself
  EXPECT_EQ(unused.size(), 1);
  EXPECT_EQ(assigned.toString(), "1");
  EXPECT_EQ(cloned->toString(), "1");
}

TEST(ObjectList, holdsOneCountOnEachElement) {
  SmartPtr<Counted> shared(new Counted);
  {
    ObjectList list(shared.get());
    list.add(static_cast<Object*>(new Counted)).add(shared.get());
    EXPECT_EQ(shared->getRefCount(), 3);
    EXPECT_EQ(Counted::alive, 2);
    list.clear();
    EXPECT_EQ(Counted::alive, 1);
    EXPECT_EQ(list.size(), 0);
    list.add(shared.get());
  }
  EXPECT_EQ(shared->getRefCount(), 1);
}

TEST(ArrayList, growsInStepsOfTen) {
  ArrayList<int> list;
  std::vector<unsigned int> sizesThatGrow;
  for (int i = 0; i < 40; ++i) {
    const Allocations allocations;
    list.push_back(i);
    if (allocations.count() != 0) sizesThatGrow.push_back(list.size());
  }
  EXPECT_EQ(sizesThatGrow, (std::vector<unsigned int>{1, 10, 20, 30, 40}));
  list.pop_back();
  EXPECT_EQ(list.top(), 38);
  list.clear();
  list.reserve(100);
  const Allocations allocations;
  for (int i = 0; i < 99; ++i) list.push_back(i);
  EXPECT_EQ(allocations.count(), 0);
  EXPECT_EQ(list.at(98), 98);
}

TEST(ArrayList, aliasesWhenAssignedAndLosesNothing) {
  ArrayList<zkstring> first;
  first.push_back("a");
  ArrayList<zkstring> second;
  second.push_back("dropped");
  second = first;
  second = *&second;  // itself
  second.at(0) = "b";
  EXPECT_EQ(first.at(0), "b");
  while (second.size() < 10) second.push_back(second.at(0));  // the tenth moves to an array of its own
  second.at(0) = "d";
  EXPECT_EQ(first.at(0), "b");
  first = ArrayList<zkstring>();
  EXPECT_EQ(second.at(0), "d");
}

TEST(SmallStringMap, holdsOneCountOnEachValue) {
  SmartPtr<Counted> one(new Counted);
  SmartPtr<Counted> two(new Counted);
  {
    SmallStringMap map;
    EXPECT_EQ(map.get("a"), nullptr);
    map.put("a", one.get());
    map.put("b", nullptr);
    map.put("a", one.get());
    map.put("a", two.get());
    EXPECT_EQ(one->getRefCount(), 1);
    EXPECT_EQ(map.get("a"), two.get());
    EXPECT_EQ(map.get("b"), nullptr);
    SmallStringMap alias;
    alias.put("dropped", one.get());
    alias = map;
    EXPECT_EQ(one->getRefCount(), 1);
    alias.put("a", one.get());
    EXPECT_EQ(map.get("a"), one.get());
    for (const char key : {'c', 'd', 'e', 'f', 'g', 'h', 'i', 'j', 'k'}) map.put(zkstring(1, key), two.get());
    EXPECT_EQ(alias.get("a"), one.get());
    map.put("a", nullptr);
    EXPECT_EQ(map.get("k"), two.get());
  }
  EXPECT_EQ(one->getRefCount(), 1);
  EXPECT_EQ(two->getRefCount(), 1);
}

}  // namespace
}  // namespace zarvik
