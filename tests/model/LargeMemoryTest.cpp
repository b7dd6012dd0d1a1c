#include "model/LargeMemory.h"

#include "model/modGlobal.h"

#include <gtest/gtest.h>

#include <cstddef>

namespace vorlane {
namespace {

TEST(LargeMemory, EveryByteOfABlockCanBeWrittenAndReadBack)
{
    for (const std::size_t size : {std::size_t{0},
                                   std::size_t{1},
                                   std::size_t{4095},
                                   std::size_t{4097},
                                   std::size_t{2} << 20,
                                   (std::size_t{5} << 20) + 3}) {
        SCOPED_TRACE(size);
        const std::size_t room = largeBlockSize(size);
        EXPECT_GE(room, size);
        EXPECT_GE(room, 1u);
        auto *data = static_cast<unsigned char *>(allocateLarge(size));
        ASSERT_NE(data, nullptr);
        std::size_t nonZero = 0;
        for (std::size_t i = 0; i < room; ++i)
            nonZero += data[i] != 0;
        EXPECT_EQ(nonZero, 0u);
        for (std::size_t i = 0; i < room; ++i)
            data[i] = static_cast<unsigned char>(i * 7);
        std::size_t wrong = 0;
        for (std::size_t i = 0; i < room; ++i)
            wrong += data[i] != static_cast<unsigned char>(i * 7);
        EXPECT_EQ(wrong, 0u);
        freeLarge(data, size);
    }
}

TEST(LargeMemory, TheDocumentLivesInIt)
{
    auto doc = makeDocument();
    // A new document holds the values its members declare.
    EXPECT_EQ(doc->Sprites[200].anims[100].frames[100].inUse, 0);
    EXPECT_EQ(doc->Sprites[200].anims[100].frames[100].cell, 0);
    EXPECT_EQ(doc->Sprites[200].anims[100].id, "");
    EXPECT_EQ(doc->Scenes[100].layers[100].objectId, "");
    EXPECT_EQ(doc->list(Kind::Scene).selected, -1);
    EXPECT_TRUE(doc->list(Kind::Button).lines.empty());
    EXPECT_EQ(doc->objectCount(Kind::Sprite), 0);
    EXPECT_EQ(doc->newObjectCounter, 0);
    EXPECT_EQ(doc->AppSettings.customFilterCount, 0);
    EXPECT_EQ(doc->ProjectInfo.projectOpen, 0);
    doc->Sprites[200].anims[100].frames[100].cell = 7;
    EXPECT_EQ(doc->Sprites[200].anims[100].frames[100].cell, 7);
}

} // namespace
} // namespace vorlane
