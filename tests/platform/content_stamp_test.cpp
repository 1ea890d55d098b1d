#include "platform/content_stamp.h"

#include <gtest/gtest.h>

#include <string>

using namespace platform;

// The verification of the hash's author (SMHasher, "Murmur3F" 0x6384BA69): the hashes of the keys {}, {0}, {0, 1}, ...
// under the seeds 256, 255, ..., one behind the other, hashed once more; the first four bytes of that count.
TEST(Content_stamp, HashesAsItsAuthorVerifiesIt) {
  std::string key, hashes;
  const auto add = [&](std::uint64_t word) {
    for (int i = 0; i < 8; ++i) hashes.push_back(static_cast<char>(word >> (8 * i) & 0xff));
  };
  for (unsigned i = 0; i < 256; ++i) {
    for (const std::uint64_t word : hash_128(key, 256 - i)) add(word);
    key.push_back(static_cast<char>(i));
  }
  EXPECT_EQ(hash_128(hashes)[0] & 0xffffffff, 0x6384BA69u);
}

TEST(Content_stamp, TellsMissingEmptyAndFilledFilesApart) {
  EXPECT_NE(stamp_of(Contents()), stamp_of(Contents("")));
  EXPECT_NE(stamp_of(Contents("")), stamp_of(Contents(std::string(1, '\0'))));
  EXPECT_EQ(stamp_of(Contents("a,b")), stamp_of(std::string_view("a,b")));
  EXPECT_EQ(stamp_of(Contents("a,b")).length, 3u);
}

TEST(Content_stamp, SeesOneBitAnywhere) {
  const std::string bytes(1000, 'x');
  for (std::size_t i = 0; i < bytes.size(); ++i) {
    std::string other = bytes;
    other[i] ^= 1;
    EXPECT_NE(stamp_of(std::string_view(bytes)), stamp_of(std::string_view(other))) << i;
  }
}
