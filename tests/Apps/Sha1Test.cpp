#include "Apps/trovex-cli/Sha1.h"

#include <gtest/gtest.h>

namespace trovex::test {
namespace {

std::string DigestOf(std::string_view bytes) {
  cli::Sha1 sha1;
  sha1.Add(bytes);
  return sha1.Digest();
}

TEST(Sha1Test, GivesThePublishedDigests) {
  EXPECT_EQ(DigestOf(""), "da39a3ee5e6b4b0d3255bfef95601890afd80709");
  EXPECT_EQ(DigestOf("abc"), "a9993e364706816aba3e25717850c26c9cd0d89d");
  EXPECT_EQ(DigestOf("abcdbcdecdefdefgefghfghighijhijkijkljklmklmnlmnomnopnopq"),
            "84983e441c3bd26ebaae4aa1f95129e5e54670f1");
  EXPECT_EQ(DigestOf(std::string(1000000, 'a')), "34aa973cd4c4daa4f61eeb2bdbad27316534016f");
}

// Around the lengths at which the end fills a block or needs one more.
TEST(Sha1Test, PiecesOfAnySizeMakeTheSameDigest) {
  for (std::size_t size = 0; size < 200; ++size) {
    std::string bytes;
    for (std::size_t i = 0; i < size; ++i) bytes += static_cast<char>(i * 37);
    for (const std::size_t piece : {1u, 3u, 63u, 64u, 65u}) {
      cli::Sha1 sha1;
      for (std::size_t at = 0; at < size; at += piece) sha1.Add(bytes.substr(at, piece));
      ASSERT_EQ(sha1.Digest(), DigestOf(bytes)) << size << " in pieces of " << piece;
    }
  }
}

}  // namespace
}  // namespace trovex::test
