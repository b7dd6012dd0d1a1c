#include "rules/MediaFieldRules.h"

#include <gtest/gtest.h>

#include <memory>
#include <stdexcept>
#include <string>

namespace vorlane {
namespace {

TEST(MediaFields, FontsHavePathOnly)
{
    auto doc = makeDocument();
    const MediaFields fields = mediaFields(*doc, Kind::Font, 25);
    EXPECT_EQ(&fields.id, &doc->Fonts[25].id);
    EXPECT_EQ(&fields.path, &doc->Fonts[25].path);
    EXPECT_EQ(fields.playback, nullptr);
}

TEST(MediaFields, MusicTracksAndSoundEffectsComeFromTheirOwnTables)
{
    auto doc = makeDocument();
    const MediaFields music = mediaFields(*doc, Kind::Music, 100);
    EXPECT_EQ(&music.id, &doc->MusicTracks[100].id);
    EXPECT_EQ(&music.path, &doc->MusicTracks[100].path);
    EXPECT_EQ(music.playback, &doc->MusicTracks[100]);

    const MediaFields sfx = mediaFields(*doc, Kind::SFX, 200);
    EXPECT_EQ(&sfx.id, &doc->SoundEffects[200].id);
    EXPECT_EQ(&sfx.path, &doc->SoundEffects[200].path);
    EXPECT_EQ(sfx.playback, static_cast<MusicRec *>(&doc->SoundEffects[200]));
}

TEST(MediaFields, SlotOutsideTheTableThrows)
{
    auto doc = makeDocument();
    EXPECT_THROW(mediaFields(*doc, Kind::Font, 26), std::out_of_range);
    EXPECT_THROW(mediaFields(*doc, Kind::Music, 101), std::out_of_range);
    EXPECT_THROW(mediaFields(*doc, Kind::SFX, 201), std::out_of_range);
    EXPECT_THROW(mediaFields(*doc, Kind::SFX, -1), std::out_of_range);
}

TEST(MediaFields, OtherKindsAreRefused)
{
    auto doc = makeDocument();
    for (Kind kind :
         {Kind::Button, Kind::Cursor, Kind::Image, Kind::Text, Kind::Sprite, Kind::Scene})
        EXPECT_THROW(mediaFields(*doc, kind, 0), std::invalid_argument);
}

TEST(MediaDefaults, NewFontHasNoPath)
{
    auto doc = makeDocument();
    doc->Fonts[3].path = "fonts/old.ttf"; // left by an earlier object in the slot
    doc->Fonts[3].id = "oldFont";
    setMediaDefaults(mediaFields(*doc, Kind::Font, 3));
    EXPECT_EQ(doc->Fonts[3].path, "null");
    EXPECT_EQ(doc->Fonts[3].id, "oldFont"); // the id is set with every kind's defaults
}

TEST(MediaDefaults, NewSoundsPlayAtZero)
{
    auto doc = makeDocument();
    for (Kind kind : {Kind::Music, Kind::SFX}) {
        const MediaFields fields = mediaFields(*doc, kind, 7);
        fields.path = "old.ogg";
        fields.playback->defaultVolume = 200;
        fields.playback->defaultPriority = -3;
        fields.playback->defaultPan = 64;
        setMediaDefaults(fields);
        EXPECT_EQ(fields.path, "null");
        EXPECT_EQ(fields.playback->defaultVolume, 0);
        EXPECT_EQ(fields.playback->defaultPriority, 0);
        EXPECT_EQ(fields.playback->defaultPan, 0);
    }
    // Each kind kept to its own table.
    EXPECT_EQ(doc->MusicTracks[7].path, "null");
    EXPECT_EQ(doc->SoundEffects[7].path, "null");
    EXPECT_EQ(doc->SoundEffects[8].path, "");
}

} // namespace
} // namespace vorlane
