#include "base/Sha256.h"

#include <gtest/gtest.h>

namespace {

std::string Of(std::string_view bytes) {
  Sha256 sum;
  sum.Add(bytes);
  return sum.Hex();
}

// The examples that the standard's authors give.
TEST(Sha256, IsThatOfTheStandard) {
  EXPECT_EQ(Of(""), "e3b0c44298fc1c149afbf4c8996fb92427ae41e4649b934ca495991b7852b855");
  EXPECT_EQ(Of("abc"), "ba7816bf8f01cfea414140de5dae2223b00361a396177a9cb410ff61f20015ad");
  EXPECT_EQ(Of("abcdbcdecdefdefgefghfghighijhijkijkljklmklmnlmnomnopnopq"),
            "248d6a61d20638b8e5c026930c3e6039a33ce45964ff2167f6ecedd419db06c1");
  EXPECT_EQ(Of("abcdefghbcdefghicdefghijdefghijkefghijklfghijklmghijklmn"
               "hijklmnoijklmnopjklmnopqklmnopqrlmnopqrsmnopqrstnopqrstu"),
            "cf5b16a778af8380036ce59e7b0492370b249b11e8f07a51afac45037afee9d1");
  EXPECT_EQ(Of(std::string(1'000'000, 'a')),
            "cdc76e5c9914fb9281a1c7e284d73e67f1809a48a497200e046d39ccc7112cd0");
}

TEST(Sha256, IsTheSameInWhateverPiecesItComes) {
  std::string bytes;
  for (int i = 0; i < 300; ++i) bytes += static_cast<char>(i * 7);
  for (size_t length = 0; length <= 200; ++length) {
    const std::string_view all = std::string_view(bytes).substr(0, length);
    const std::string whole = Of(all);
    for (const size_t piece : {1, 3, 63, 64, 65}) {
      Sha256 sum;
      for (size_t at = 0; at < all.size(); at += piece) sum.Add(all.substr(at, piece));
      ASSERT_EQ(sum.Hex(), whole) << length << " bytes by " << piece;
    }
  }
}

}  // namespace
