#include "Utf8.h"

#include <gtest/gtest.h>

TEST(Utf8, ThereAndBack) {
  using Row = std::pair<std::string, std::u16string>;
  for (const auto& [utf8, units] :
       {Row("", u""), Row("a\x7F", u"a\x7F"), Row("\xC2\x80\xDF\xBF", u"\x80\x7FF"),
        Row("\xE0\xA0\x80\xEF\xBF\xBF", u"\x800\xFFFF"),
        Row("\xED\x9F\xBF\xEE\x80\x80", u"\xD7FF\xE000"),
        Row("linéaire モデル", u"linéaire モデル"),
        Row("\xF0\x90\x80\x80\xF4\x8F\xBF\xBF", u"\xD800\xDC00\xDBFF\xDFFF")}) {
    EXPECT_EQ(unitsOfUtf8(utf8), units);
    EXPECT_EQ(utf8OfUnits(units), utf8);
  }
}

TEST(Utf8, WhatIsNotWellFormed) {
  EXPECT_EQ(unitsOfUtf8("\x80z\xC1\xBF\xE2\x82x\xC3"), u"\xFFFDz\xFFFD\xFFFD\xFFFD\xFFFDx\xFFFD");
  EXPECT_EQ(unitsOfUtf8("\xED\xA0\x80\xE0\x9F\xBF"), std::u16string(6, 0xFFFD));
  EXPECT_EQ(unitsOfUtf8("\xF4\x90\x80\x80"), std::u16string(4, 0xFFFD));
  EXPECT_EQ(utf8OfUnits(u"\xD800x\xDC00"), "\xEF\xBF\xBDx\xEF\xBF\xBD");
}
