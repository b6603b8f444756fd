// What every machine promises of the characters of its code page: the Western one, in which the
// contracts run. Included once by each machine's tests.
#pragma once

#include "platform/Characters.h"
#include "platform/LetterCase.h"
#include "tests/machine/TestMachine.h"

class CharactersContract : public ContractTest {};

TEST_F(CharactersContract, EachByteIsACharacter) {
  EXPECT_EQ(Platform::WholeCharacterLength(""), 0u);
  for (int byte = 0; byte < 256; ++byte) {
    const std::string text{static_cast<char>(byte), 'x'};
    EXPECT_EQ(Platform::WholeCharacterLength(text), 1u) << byte;
    EXPECT_EQ(Platform::CharacterLength(text), 1u) << byte;
  }
}

TEST_F(CharactersContract, GoesToUtf8AndBack) {
  const std::string text = "Tom & J\xFCrgen's 5 \x80.trk";
  const std::string utf8 = "Tom & J\xC3\xBCrgen's 5 \xE2\x82\xAC.trk";
  EXPECT_EQ(Platform::ToUtf8(text), utf8);
  EXPECT_EQ(Platform::FromUtf8(utf8), text);
  EXPECT_EQ(Platform::ToUtf8(""), "");
  EXPECT_EQ(Platform::FromUtf8(""), "");
}

TEST_F(CharactersContract, WhatTheCodePageLacksIsNoLetterThatLooksAlike) {
  EXPECT_EQ(Platform::FromUtf8("\xC4\x80\xE5\xB1\xB1.trk"), "??.trk");
}

TEST_F(CharactersContract, SmallLettersBeyondAToZ) {
  EXPECT_EQ(Platform::LowerCase("C:\\\xC4rger \xD7 \xDF.TRK"), "c:\\\xE4rger \xD7 \xDF.trk");
}
