// What each kind of cell takes from the user.

#include <gtest/gtest.h>

#include "base/text.h"
#include "grid/test_designs.h"

namespace survey {
namespace {

using Texts = std::vector<std::string>;

struct KindCase {
  CellKind kind;
  std::string request;    // what a refusal says
  Texts hopeless;         // refused at the key
  Texts taken;            // "typed" or "typed>what the cell then holds"
  Texts unfinished = {};  // refused at ENTER only
};

const KindCase kCases[] = {
    {Number(0, 99999),
     "Enter a whole number from 0 to 99999.",
     {"100000", "99999999", std::string(400, '9'), "1,5", "1.5", "-3", "12a", "S1", "1 000.5",
      "1  2", "1234 5", "1 234 5", "123 45 6", "1.", "+1", "1e3", "\u0661", "(1)"},
     {"0", "99999", " 12 >12", "1 234>1234", "12\u00A0345 >12345", "007>7",
      std::string(50, '0') + ">0"},
     {"1 2", "12 34"}},
    {Number(0, 999), "Enter a whole number from 0 to 999.", {"1 0", "1000"}, {"999"}},
    {Number(5, 10), "Enter a whole number from 5 to 10.", {"2", "11"}, {"5", "10"}, {"1", "0"}},
    {Number(10, 9999.99), "Enter a whole number from 10 to 9999.", {"10000"}, {"10"}, {"1", "0"}},
    {Number(-9999999.99, 9999999.99, 3),
     "Enter a number from -9999999.99 to 9999999.99, with at most 3 decimals after a point.",
     {"1.2355", "-10000000", "9999999.991", "1.2.3", "1,2,3", "1.234,5", "1 23.5", "1.5 0", "5-",
      "--", "12a"},
     {"1.235", "1,5>1.5", "-1,5>-1.5", "1 000.5>1000.5", "1 000 000,25>1000000.25", "-9999999.99",
      "\u22125>-5", ".5>0.5", "5.>5", "-0.50>-0.5", "-0>0"},
     {".", "-", "-1 0", ","}},
    {Digits(10),
     "Enter digits only, at most 10.",
     {"01112345678", "12A", "-12", "1,5", "1.5", "+27"},
     {"0012", "(011) 765-4321>0117654321", "011 123 4567>0111234567", " 011\u2013765 >011765"},
     {"(", "( )"}},
    {Text(7),
     "Enter one line of at most 7 characters.",
     {"abcdefgh", "a\nb", "a\tb", "a\u2028b", "\u0085"},
     {" ab ", "éèêëïüö", "O'Brien"}},
    {Capitals(6),
     "Enter one line of at most 6 characters.",
     {"abcdefg", "abcdeß"},
     {"zoé k>ZOÉ K"}},  // the capital of ß is two letters
    {Date(),
     "Enter a date as yyyy/mm/dd, from 1900/01/01 to 2100/12/31.",
     {"1900/02/29", "1975/04/31", "1975/13", "1975/00", "1975/3/9", "197503091", "09/03/1975",
      "9 March 1975", "1975/03-09", "1899", "2101", "3"},
     {"2000/02/29", "1900/01/01", "2100/12/31", "19750309>1975/03/09", " 1975-03-09 >1975/03/09",
      "1975.03.09>1975/03/09"},
     {"1975/03", "2", "1975-1"}},
    {CheckBoxCell(),
     "Enter 1 for a ticked box, 0 for one that is not.",
     {"2", "x", "01"},
     {"1", "0"}}};

TEST(EntryTest, KindsTakeWhatTheyShould) {
  for (const KindCase& one : kCases) {
    const GridDesign design = OneCell(one.kind);
    Grid grid(design);
    for (const std::string& taken : one.taken) {
      const std::string text = taken.substr(0, taken.find('>'));
      const std::string held = taken.substr(taken.find('>') + 1);
      SCOPED_TRACE(text);
      grid.SetText(1, 1, "before");
      EXPECT_EQ(grid.Type(1, 1, text).reason, "");
      EXPECT_EQ(grid.GetText(1, 1), held);
      EXPECT_TRUE(grid.Type(1, 1, "").taken);
      EXPECT_EQ(grid.GetText(1, 1), "") << "emptied, never 0";
      // No key on the way to an entry may be refused.
      for (int end = 0; end <= CharacterCount(text); ++end) {
        EXPECT_TRUE(grid.MayBecome(1, 1, FirstCharacters(text, end)).taken) << end;
      }
    }
    grid.SetText(1, 1, "before");
    for (const Texts* refused : {&one.hopeless, &one.unfinished}) {
      for (const std::string& text : *refused) {
        SCOPED_TRACE(text);
        const Entry entry = grid.Type(1, 1, text);
        EXPECT_FALSE(entry.taken);
        EXPECT_EQ(entry.reason, one.request);
        EXPECT_EQ(grid.GetText(1, 1), "before");
        const bool at_the_key = refused == &one.hopeless;
        EXPECT_EQ(grid.MayBecome(1, 1, text).taken, !at_the_key);
        EXPECT_EQ(grid.MayBecome(1, 1, text).reason, at_the_key ? one.request : "");
      }
    }
  }
}

TEST(EntryTest, OnlyEntriesThatChangeSomethingAreNotified) {
  const GridDesign design = OneCell(Number(0, 99));
  Grid grid(design);
  const auto heard = Listen(grid);
  grid.SetText(1, 1, "0123456");  // code may
  EXPECT_TRUE(grid.Type(1, 1, "0123456").taken) << "passing through is no entry";
  EXPECT_TRUE(heard->empty());
  for (const char* text : {"5", "5", "05", " 5", "6,6", "", "", " ", "0", ""}) {
    grid.Type(1, 1, text);
  }
  EXPECT_EQ(*heard, Texts(4, "change 1,1")) << "5, emptied, 0, emptied";
  EXPECT_FALSE(grid.Tick(1, 1).taken) << "no box";
}

}  // namespace
}  // namespace survey
