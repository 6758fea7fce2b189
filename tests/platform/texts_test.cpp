#include <gtest/gtest.h>

#include <string>

#include "shell/platform/parity_marks.h"
#include "shell/platform/text_codec.h"

namespace ovl {
namespace {

TEST(TextCodec, EveryByteIsACharacterOfItsOwnWhereWindowsHasIt) {
  std::string bytes;
  for (int code = 0; code < 256; ++code) bytes += static_cast<char>(code);
  EXPECT_EQ(FromWindows1252(bytes).size(), 256);
  EXPECT_EQ(ToWindows1252(FromWindows1252(bytes)), bytes);
  EXPECT_EQ(ToWindows1252(u"\u20AC \u017D \u0178 \u00E4"), "\x80 \x8E \x9F \xE4");
  EXPECT_EQ(FromWindows1252("\x81\x8D\x8F\x90\x9D"), QStringView(u"\u0081\u008D\u008F\u0090\u009D"));
  for (const char16_t* text : {u"a\u0080b", u"\u0100", u"\u00E4\u0439", u"\U0001F600"}) {
    EXPECT_EQ(ToWindows1252(text), std::nullopt) << QString::fromUtf16(text).toStdString();
  }
}

TEST(TextCodec, WhatTheSystemSaysIsUtf8WhereItCanBe) {
  EXPECT_EQ(FromSystem("/tmp/\xC3\xA4: denied"), QStringView(u"/tmp/\u00E4: denied"));
  EXPECT_EQ(FromSystem("/tmp/\xE4"), QStringView(u"/tmp/\u00E4"));
}

TEST(ParityMarks, AnySplitOfTheReadsGivesTheSameCharacters) {
  using namespace std::string_literals;
  const auto marked = "a\xFF\0b\xFF\xFF\xFF\0\xFF\xFF\0\0\0z\xFF\xFF\xFF\xFF?"s;
  const auto expected = "a?\xFF??\0z\xFF\xFF?"s;
  for (std::size_t first = 0; first <= marked.size(); ++first) {
    for (std::size_t second = first; second <= marked.size(); ++second) {
      ParityMarks marks;
      auto text = marks.Decode(marked.substr(0, first));
      text += marks.Decode(marked.substr(first, second - first));
      text += marks.Decode(marked.substr(second));
      ASSERT_EQ(text, expected) << first << " " << second;
    }
  }
}

}  // namespace
}  // namespace ovl
