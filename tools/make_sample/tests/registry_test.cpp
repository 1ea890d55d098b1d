// The sample's registration file, through the program's own registry.
#include "observations/registry.h"

#include <gtest/gtest.h>

#include "make_sample/observations.h"
#include "make_sample/place.h"
#include "support/temporary_folder.h"

namespace {

TEST(Sample_registry, IsReadWholeAndSavedByteForByte) {
  const std::string bytes = sample::registry_bytes(sample::observations(sample::make_country(30)));
  const support::Temporary_folder folder;
  const std::string path = folder.text() + "\\seminogawa.csv";
  platform::Disk_files files;
  files.write_whole(path, bytes);
  observations::Registry registry;
  observations::chisoumen_read(registry, files, 1, {path});
  EXPECT_TRUE(registry.complete);
  EXPECT_GT(registry.N, 150);
  EXPECT_EQ(observations::registry_bytes(registry), bytes);
}

}  // namespace
