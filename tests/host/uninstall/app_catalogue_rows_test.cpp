// Every row of the catalogue, in all its answers.

#include "ui/uninstall/src/app_catalogue.h"

#include <gtest/gtest.h>

namespace uninstall {

namespace {

struct Row
{
    int id;
    const char* registered; // in uninstall commands and after "/app"
    const char* idString;
    const char* listName;
    const char* variantName;
    const char* shortCode;
};

// Typed from the product's table, not taken from the catalogue.
constexpr Row rows[] = {
    {0, "Tessera", "Tessera", "Tessera Kit", "Tessera Kit", "tsr"},
    {2, "ClipTrimmer", "ClipTrimmer", "Clip Trimmer", "Clip Trimmer", "cltrm"},
    {3, "TrackRipper", "TrackRipper", "Track Ripper", "Track Ripper", "trkrp"},
    {5, "DiscComposer", "DiscComposer", "Disc Composer", "Disc Composer", "dcmp"},
    {9, "ScreenTaker", "ScreenTaker", "Screen Taker", "Screen Taker", "scrtk"},
    {10, "PictureSlicer", "PictureSlicer", "Picture Slicer", "Picture Slicer", "picslcr"},
    {14, "SoundShaper", "SoundShaper", "Sound Shaper", "Sound Shaper", "sndsh"},
    {15, "ReelJoiner", "ReelJoiner", "Reel Joiner", "Reel Joiner", "rljn"},
    {25, "PhotoMender", "PhotoMender", "Photo Mender", "Photo Mender", "phmnd"},
    {27, "SubtitleWeaver", "SubtitleWeaver", "Subtitle Weaver", "Subtitle Weaver", "subwv"},
    {33, "AlbumKeeper", "AlbumKeeper", "Album Keeper", "Album Keeper", "albkp"},
    {39, "WaveTuner", "WaveTuner", "Wave Tuner", "Wave Tuner", "wvtn"},
    {40, "FrameCatcher", "FrameCatcher", "Frame Catcher", "Frame Catcher", "frmct"},
    {42, "PodcastPress", "PodcastPress", "Podcast Press", "Podcast Press", "podpr"},
    {43, "LoopMaker", "LoopMaker", "Loop Maker", "Loop Maker", "lpmk"},
    {52, "StreamMixer", "StreamMixer", "Stream Mixer", "Stream Mixer", "strmx"},
    // Answers with its spaced name, and has no name for the list.
    {53, "PhotoStoryAndSlideshow", "Photo Story and Slideshow", "", "", "pstsl"},
    {54, "VoiceBooth", "VoiceBooth", "Voice Booth", "Voice Booth", "vcbth"},
    {55, "TagSorter", "TagSorter", "Tag Sorter", "Tag Sorter", "tgsrt"},
    {58, "PanoramaStitcher", "PanoramaStitcher", "Panorama Stitcher", "Panorama Stitcher", "panst"},
    {59, "MediaVault", "MediaVault", "Media Vault", "Media Vault", "mdvlt"},
    {60, "ClipSaver", "ClipSaver", "Clip Saver 2026", "Tessera Clip Saver", "clsv"},
    {61, "TrackSaver", "TrackSaver", "Track Saver 2026", "Tessera Track Saver", "trksv"},
    {62, "KaraokeStage", "KaraokeStage", "Karaoke Stage", "Karaoke Stage", "krstg"},
    {63, "BeatGrid", "BeatGrid", "Beat Grid", "Beat Grid", "btgrd"},
    {64, "VidaloDownloader", "VidaloDownloader", "Vidalo Downloader", "Vidalo Downloader", "vdldl"},
    {65, "MusaloDownloader", "MusaloDownloader", "Musalo Downloader", "Musalo Downloader", "msldl"},
    {66, "CaptionStudio", "CaptionStudio", "Caption Studio", "Caption Studio", "capst"},
    {67, "CodecDoctor", "CodecDoctor", "Codec Doctor", "Codec Doctor", "cdcdr"},
    {68, "LightTable", "LightTable", "Light Table", "Light Table", "lttbl"},
};

} // namespace

TEST(AppCatalogueRows, EveryFieldIsTheProductTables)
{
    for (const Row& row : rows) {
        SCOPED_TRACE(row.id);
        EXPECT_EQ(idFromString(row.registered), row.id);
        EXPECT_EQ(idToString(row.id), row.idString);
        EXPECT_EQ(displayName(row.id, false), row.listName);
        EXPECT_EQ(displayName(row.id, true), row.variantName);
        EXPECT_EQ(shortCode(row.id), row.shortCode);
    }
}

} // namespace uninstall
