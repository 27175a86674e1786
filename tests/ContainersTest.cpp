// The four lists: VList, ObjectList, ArrayList and SmallStringMap.
#include <gmock/gmock.h>

#include <cmath>

#include "ArrayList.h"
#include "Support.h"

namespace zarvik {
namespace {

using IntList = VList<std::vector<int>, int>;
using BoolList = VList<SimpleDeque<bool>, bool>;

using Counted = Living<ObjectRef>;

template <class List, class... T>
List listOf(T... values) {
  List list;
  (list.add(values), ...);
  return list;
}

template <class T, class... Values>
zkstring printed(Values... values) {
  return listOf<VList<std::vector<T>, T>>(values...).toString();
}

TEST(VList, printsEachTypeOfElement) {
  EXPECT_EQ(listOf<BoolList>(true, false).toString() + printed<char>('a', ',') + printed<int>(1, -2),
            "[1, 0][a, ,][1, -2]");
  EXPECT_EQ(printed<__int64>(__int64{1} << 40) + printed<float>(0.1F) + printed<double>(5.0),
            "[1099511627776][0.1][5.0]");
  EXPECT_EQ(printed<zkstring>() + printed<zkstring>("a", "", "b") + printed<Binary>(Binary("xy", 2)), "[][a, , b][xy]");
  EXPECT_EQ(printed<BigInteger>(BigInteger("120")) + printed<BigDecimal>(BigDecimal("120")), "[120][120.0]");
  EXPECT_EQ(printed<DateTime>(DateTime(2024, 2, 29, 0, 0, 0, 0)), "[Feb 29, 2024]");
}

template <class List>
void copiesShareTheirElements() {
  List list;
  const List copied(list);
  List assigned;
  assigned = copied;
  const SmartPtr<Object> cloned(list.clone());
  list.add(7);
  list = *&list;  // itself
  EXPECT_EQ(copied.size(), 1);
  EXPECT_EQ(assigned.size(), 1);
  EXPECT_EQ(cloned->toString(), list.toString());
  const List moved(std::move(list));
  EXPECT_EQ(list.size(), 0);  // NOLINT(bugprone-use-after-move): moved from means empty and usable
  list.add(1);
  EXPECT_EQ(moved.size(), 1);
}

TEST(VList, sharesItsElementsWithAllCopies) { copiesShareTheirElements<IntList>(); }
TEST(ObjectList, sharesItsElementsWithAllCopies) { copiesShareTheirElements<ObjectList>(); }

TEST(VList, comparesByTheFirstPairThatDiffers) {
  const IntList list = listOf<IntList>(1, 9);
  EXPECT_EQ(list.compareTo(listOf<IntList>(1)), 1);
  EXPECT_EQ(list.compareTo(listOf<IntList>(1, 9, 3, 4)), -2);
  EXPECT_EQ(list.compareTo(listOf<IntList>(2)), -1);
  EXPECT_EQ(list.compareTo(listOf<IntList>(1, 8, 7)), 1);
  const auto odd = listOf<VList<std::vector<double>, double>>(std::nan(""));
  EXPECT_EQ(odd.compareTo(odd), 0);
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
  const auto fails = testing::ThrowsMessage<std::out_of_range>("invalid vector<T> subscript");
  IntList list = listOf<IntList>(1, 2);
  for (const int index : {-1, 2}) {
    EXPECT_THAT([&] { list.get(index); }, fails);
    EXPECT_THAT([&] { list.set(index, 0); }, fails);
    EXPECT_THAT([&] { list.removeElementAt(index); }, fails);
  }
  EXPECT_THAT([] { BoolList().get(0); }, testing::ThrowsMessage<std::out_of_range>("invalid deque<T> subscript"));
}

TEST(ObjectList, boxesWhatIsAdded) {
  ObjectList list;
  EXPECT_EQ(list.toString(), "");
  list.add(zkstring("text")).add("chars").add(1).add(__int64{2}).add(0.5F).add(1.5).add('c').add(true);
  list.add(BigDecimal("1.25")).add(BigInteger("7")).add(Binary("b", 1)).add(DateTime(2000, 1, 2, 3, 4, 5, 6));
  list.add(static_cast<Object*>(nullptr)).add(ObjectList(5));
  EXPECT_EQ(list.toString(), "text,chars,1,2,0.5,1.5,c,true,1.25,7,b,2000-01-02T03:04:05.006,null,5");
  EXPECT_EQ(list[3]->getObjectType(), "Long");
  EXPECT_EQ(list.get(12), nullptr);
  EXPECT_EQ(ObjectList("a", 1).toString() + ObjectList(2, "b").toString() + ObjectList("c", "d").toString(),
            "a,12,bc,d");
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

TEST(ObjectList, isFitToUseWhileAnElementEnds) {
  struct Clearing : Counted {
    ~Clearing() override { list.clear(); }
    ObjectList list;
  };
  ObjectList list;
  auto* const clearing = new Clearing;
  clearing->list = list;
  list.add(static_cast<Object*>(clearing)).add(static_cast<Object*>(new Counted)).clear();
  EXPECT_EQ(list.size(), 0);
  EXPECT_EQ(Counted::alive, 0);
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
    map.put("b", nullptr);
    for (Counted* value : {one.get(), one.get(), two.get()}) map.put("a", value);
    EXPECT_EQ(one->getRefCount(), 1);
    SmallStringMap alias;
    alias.put("dropped", one.get());
    alias = map;
    EXPECT_EQ(one->getRefCount(), 1);
    alias.put("a", one.get());
    EXPECT_EQ(map.get("a"), one.get());
    for (char key = 'c'; key < 'l'; ++key) map.put(zkstring(1, key), two.get());  // the last into a longer array
    EXPECT_EQ(alias.get("a"), one.get());
    map.put("a", nullptr);
    EXPECT_EQ(map.get("k"), two.get());
  }
  EXPECT_EQ(one->getRefCount() + two->getRefCount(), 2);
}

}  // namespace
}  // namespace zarvik
