#include "ui/uninstall/src/app_catalogue.h"

#include <algorithm>
#include <iterator>

namespace uninstall {

namespace {

struct Application
{
    int id;
    const char* idString;
    const char* displayName;
    const char* displayNameVariant; // null: the same as displayName
    const char* shortCode;
};

constexpr Application applications[] = {
    {0, "Tessera", "Tessera Kit", nullptr, "tsr"},
    {2, "ClipTrimmer", "Clip Trimmer", nullptr, "cltrm"},
    {3, "TrackRipper", "Track Ripper", nullptr, "trkrp"},
    {5, "DiscComposer", "Disc Composer", nullptr, "dcmp"},
    {9, "ScreenTaker", "Screen Taker", nullptr, "scrtk"},
    {10, "PictureSlicer", "Picture Slicer", nullptr, "picslcr"},
    {14, "SoundShaper", "Sound Shaper", nullptr, "sndsh"},
    {15, "ReelJoiner", "Reel Joiner", nullptr, "rljn"},
    {25, "PhotoMender", "Photo Mender", nullptr, "phmnd"},
    {27, "SubtitleWeaver", "Subtitle Weaver", nullptr, "subwv"},
    {33, "AlbumKeeper", "Album Keeper", nullptr, "albkp"},
    {39, "WaveTuner", "Wave Tuner", nullptr, "wvtn"},
    {40, "FrameCatcher", "Frame Catcher", nullptr, "frmct"},
    {42, "PodcastPress", "Podcast Press", nullptr, "podpr"},
    {43, "LoopMaker", "Loop Maker", nullptr, "lpmk"},
    {52, "StreamMixer", "Stream Mixer", nullptr, "strmx"},
    {53, "PhotoStoryAndSlideshow", "Photo Story and Slideshow", nullptr, "pstsl"},
    {54, "VoiceBooth", "Voice Booth", nullptr, "vcbth"},
    {55, "TagSorter", "Tag Sorter", nullptr, "tgsrt"},
    {58, "PanoramaStitcher", "Panorama Stitcher", nullptr, "panst"},
    {59, "MediaVault", "Media Vault", nullptr, "mdvlt"},
    {clipSaverId, "ClipSaver", "Clip Saver 2026", "Tessera Clip Saver", "clsv"},
    {trackSaverId, "TrackSaver", "Track Saver 2026", "Tessera Track Saver", "trksv"},
    {62, "KaraokeStage", "Karaoke Stage", nullptr, "krstg"},
    {63, "BeatGrid", "Beat Grid", nullptr, "btgrd"},
    {64, "VidaloDownloader", "Vidalo Downloader", nullptr, "vdldl"},
    {65, "MusaloDownloader", "Musalo Downloader", nullptr, "msldl"},
    {66, "CaptionStudio", "Caption Studio", nullptr, "capst"},
    {67, "CodecDoctor", "Codec Doctor", nullptr, "cdcdr"},
    {lastAppId, "LightTable", "Light Table", nullptr, "lttbl"},
};

// A deliberate oddity: this row is found by its id string, but idToString() gives its spaced name
// and displayName() nothing.
constexpr int photoStoryId = 53;

const Application* findApplication(int id)
{
    const auto found = std::find_if(std::begin(applications), std::end(applications),
                                    [id](const Application& row) { return row.id == id; });
    return found != std::end(applications) ? found : nullptr;
}

} // namespace

int idFromString(std::string_view text)
{
    const auto found =
        std::find_if(std::begin(applications), std::end(applications),
                     [text](const Application& row) { return text == row.idString; });
    return found != std::end(applications) ? found->id : unknownId;
}

std::string idToString(int id)
{
    const Application* const application = findApplication(id);
    if (application == nullptr)
        return {};
    return id == photoStoryId ? application->displayName : application->idString;
}

std::string displayName(int id, bool variant)
{
    const Application* const application = findApplication(id);
    if (application == nullptr || id == photoStoryId)
        return {};
    if (variant && application->displayNameVariant != nullptr)
        return application->displayNameVariant;
    return application->displayName;
}

std::string shortCode(int id)
{
    if (const Application* const application = findApplication(id))
        return application->shortCode;
    // Codes of ids that are not in the catalogue.
    switch (id) {
    case unknownId:
        return "po";
    case 1:
        return "_1";
    case 4:
        return "_2";
    case 6:
        return "_3";
    case 7:
        return "_4";
    case 13:
        return "_8";
    default:
        return "unkn";
    }
}

} // namespace uninstall
