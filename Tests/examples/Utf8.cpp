#include "Utf8.h"

#include <gtest/gtest.h>

#include <vector>

namespace {

TEST(Utf8, ThereAndBack) {
  struct Row {
    std::string utf8;
    std::u16string units;
  };
  const std::vector<Row> rows{
      {"", u""},
      {"a\x7F", u"a\x7F"},
      {"\xC2\x80\xDF\xBF", u"\x80\x7FF"},
      {"\xE0\xA0\x80\xEF\xBF\xBF", u"\x800\xFFFF"},
      {"\xED\x9F\xBF\xEE\x80\x80", u"\xD7FF\xE000"},
      {"\xF0\x90\x80\x80\xF4\x8F\xBF\xBF", u"\xD800\xDC00\xDBFF\xDFFF"},
      {"linéaire モデル 😀", u"linéaire モデル 😀"},
  };
  for (const Row& row : rows) {
    EXPECT_EQ(unitsOfUtf8(row.utf8), row.units);
    EXPECT_EQ(utf8OfUnits(row.units), row.utf8);
  }
}

TEST(Utf8, WhatIsNotWellFormed) {
  EXPECT_EQ(unitsOfUtf8("\x80"
                        "a\xC1\xBF\xC3"),
            u"\xFFFD"
            u"a\xFFFD\xFFFD\xFFFD");
  EXPECT_EQ(unitsOfUtf8("\xED\xA0\x80"), u"\xFFFD\xFFFD\xFFFD");
  EXPECT_EQ(unitsOfUtf8("\xF4\x90\x80\x80\xE0\x9F\xBF"),
            u"\xFFFD\xFFFD\xFFFD\xFFFD\xFFFD\xFFFD\xFFFD");
  EXPECT_EQ(unitsOfUtf8("\xE2\x82x"), u"\xFFFD\xFFFDx");
  EXPECT_EQ(utf8OfUnits(u"\xD800x\xDC00"), "\xEF\xBF\xBDx\xEF\xBF\xBD");
}

}  // namespace
