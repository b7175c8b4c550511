// Prints what the content of each file tells, a line each of name and value: MediaProbe all|tags FILE...
#include <VyrHost/media/ContentKind.h>
#include <VyrHost/media/MediaValues.h>
#include <VyrHostPlatform/FileHash.h>
#include <VyrPlatform/text/Encoding.h>
#include <VyrPlatform/time/DateTimePattern.h>

#include <cstdio>
#include <string>

namespace {

using namespace VyrHost::Media;

void Print(std::string_view name, std::u16string_view value)
{
    if (!value.empty())
        std::printf("%.*s\t%s\n", static_cast<int>(name.size()), name.data(),
                    VyrPlatform::Encoding::ToUtf8(value).c_str());
}

void Print(std::string_view name, std::uint64_t value)
{
    if (value != 0)
        std::printf("%.*s\t%llu\n", static_cast<int>(name.size()), name.data(), static_cast<unsigned long long>(value));
}

CString Shown(const COleDateTime& dateTime)
{
    return VyrPlatform::DateTimePattern::Write(dateTime, u"%Y-%m-%d %H:%M:%S");
}

void Print(std::string_view name, const std::optional<PictureDate>& date)
{
    if (!date)
        return;
    Print(name, Shown(date->dateTime));
    Print(std::string(name) + ".fraction", date->fraction);
    if (date->minutesAhead)
        std::printf("%s.ahead\t%d\n", std::string(name).c_str(), *date->minutesAhead);
}

void PrintValues(const CString& path, const MediaQuestion& question)
{
    const MediaValues values = ReadMedia(path, question);
    Print("error", values.error);
    Print("width", values.width);
    Print("height", values.height);
    Print("duration", values.duration.value_or(0));
    Print("title", values.title);
    Print("artist", values.artist);
    Print("album", values.album);
    Print("track", values.track);
    Print("disc", values.disc);
    Print("year", values.year);
    Print("genre", values.genre);
    if (values.videoCreated)
        Print("videoCreated", Shown(VyrPlatform::FileTimes::ToLocal(*values.videoCreated)));
    Print("taken", values.taken);
    Print("digitized", values.digitized);
    Print("xmpCreated", values.xmpCreated);
    for (std::size_t tag = 0; tag < exifTagCount; ++tag)
        Print("Exif:" + VyrPlatform::Encoding::ToUtf8(ExifTagNames()[tag]), values.exif[tag]);
}

void PrintKindAndHash(const CString& path)
{
    const FileKind kind = KindOf(path);
    Print("extension", kind.kind != nullptr ? kind.kind->extension : u"");
    Print("sha256", VyrPlatform::Encoding::FromUtf8(VyrHostPlatform::Sha256Of(path).digits));
}

} // namespace

int main(int count, char** arguments)
{
    const bool isAll = count > 1 && std::string_view(arguments[1]) == "all";
    MediaQuestion question{.tags = true};
    if (isAll)
        question = {true, true, true, true, true, true, ExifTagSet().set()};
    for (int argument = 2; argument < count; ++argument) {
        std::printf("file\t%s\n", arguments[argument]);
        const CString path = VyrPlatform::Encoding::FromNameBytes(arguments[argument]);
        PrintValues(path, question);
        if (isAll)
            PrintKindAndHash(path);
    }
}
