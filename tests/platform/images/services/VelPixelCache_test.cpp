// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelPixelCache_test.cpp Which images are kept, which go, and who owns them.
#include "platform/images/services/VelPixelCache.h"

#include <gtest/gtest.h>

#include <vector>

#include "platform/base/VelCallOnExit.h"
#include "platform/objectmodeler/VelInstanceCounts.h"

namespace {

/// A picture of iBytes / 4 pixels in a row.
VelPixelImage* Make(std::size_t iBytes) {
  return VelPixelImage::Create(static_cast<int>(iBytes / 4), 1, VelPixelImage::Format::Rgba8,
                               VelPixelImage::ColorSpace::Srgb, std::vector<std::byte>(iBytes));
}

void KeepNew(VelPixelCache& ioCache, const std::string& iKey, std::size_t iBytes) {
  VelPixelImage* image = Make(iBytes);
  ioCache.Keep(iKey, *image);
  image->Release();
}

bool Has(VelPixelCache& ioCache, const char* iKey) {
  VelPixelImage* image = ioCache.Find(iKey);
  if (image != nullptr) image->Release();
  return image != nullptr;
}

TEST(VelPixelCache, Find_AnswersTheImageItself) {
  VelPixelCache cache;
  VelPixelImage* image = Make(8);
  cache.Keep("a", *image);
  VelPixelImage* found = cache.Find("a");
  EXPECT_EQ(found, image);
  EXPECT_EQ(cache.Find("b"), nullptr);
  found->Release();
  image->Release();
  EXPECT_EQ(cache.HeldBytes(), 8U);
}

TEST(VelPixelCache, Keep_PastTheCap_DropsWhatWasUsedLongestAgo) {
  VelPixelCache cache(100);
  KeepNew(cache, "a", 40);
  KeepNew(cache, "b", 40);
  EXPECT_TRUE(Has(cache, "a"));
  KeepNew(cache, "c", 40);
  EXPECT_TRUE(Has(cache, "a"));
  EXPECT_FALSE(Has(cache, "b"));
  EXPECT_TRUE(Has(cache, "c"));
  EXPECT_EQ(cache.HeldBytes(), 80U);
}

TEST(VelPixelCache, Keep_OfAnImageLargerThanTheCap_ChangesNothing) {
  VelPixelCache cache(100);
  KeepNew(cache, "a", 100);
  KeepNew(cache, "b", 104);
  EXPECT_TRUE(Has(cache, "a"));
  EXPECT_FALSE(Has(cache, "b"));
}

TEST(VelPixelCache, Keep_OfAKeyThatIsThere_KeepsTheFirst) {
  VelPixelCache cache(100);
  KeepNew(cache, "a", 40);
  VelPixelImage* first = cache.Find("a");
  KeepNew(cache, "a", 80);
  VelPixelImage* found = cache.Find("a");
  EXPECT_EQ(found, first);
  EXPECT_EQ(cache.HeldBytes(), 40U);
  found->Release();
  first->Release();
}

TEST(VelPixelCache, AnImageThatIsDropped_LivesWhileSomebodyHoldsIt) {
  const int before = VelInstanceCounts::Now().components;
  VelPixelImage* image = nullptr;
  {
    VelPixelCache cache(100);
    KeepNew(cache, "a", 40);
    image = cache.Find("a");
    cache.Clear();
    EXPECT_EQ(cache.HeldBytes(), 0U);
    EXPECT_FALSE(Has(cache, "a"));
    EXPECT_EQ(image->GetWidth(), 10);
    KeepNew(cache, "b", 40);
  }
  EXPECT_EQ(VelInstanceCounts::Now().components, before + 1);
  image->Release();
  EXPECT_EQ(VelInstanceCounts::Now().components, before);
}

TEST(VelPixelCache, TheOneOfTheProcess_IsEmptiedAtEachEndOfThePlatform) {
  for (int round = 0; round < 2; ++round) {
    KeepNew(VelPixelCache::OfProcess(), "a", 40);
    EXPECT_TRUE(Has(VelPixelCache::OfProcess(), "a"));
    VelPlatformTerminate();
    EXPECT_FALSE(Has(VelPixelCache::OfProcess(), "a"));
  }
}

}  // namespace
