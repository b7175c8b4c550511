// Creates pictures for the comparison of date readers: MakeDatedPictures FOLDER COUNT
//
// Each is a valid JPEG of 20 to 100 KiB with its own date, maker and model.
#include <tests/support/PictureBuilder.h>

#include <cstddef>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <string>

namespace {

std::string TwoDigits(std::size_t number)
{
    return std::to_string(100 + number % 100).substr(1);
}

VyrTests::PictureFacts FactsOf(std::size_t number)
{
    VyrTests::PictureFacts facts;
    facts.dateTimeOriginal = "2024:" + TwoDigits(1 + number / 28 / 60 % 12) + ":" + TwoDigits(1 + number / 60 % 28) +
                             " 12:34:" + TwoDigits(number % 60);
    facts.model = "Model " + std::to_string(number);
    facts.endian = number % 2 == 0 ? VyrTests::Endian::Little : VyrTests::Endian::Big;
    return facts;
}

} // namespace

int main(int count, char** arguments)
{
    if (count != 3) {
        std::cerr << "usage: MakeDatedPictures FOLDER COUNT\n";
        return 2;
    }
    const std::filesystem::path folder(arguments[1]);
    const std::size_t pictures = std::strtoul(arguments[2], nullptr, 10);
    std::filesystem::create_directories(folder);
    for (std::size_t number = 0; number < pictures; ++number) {
        const std::size_t size = 1024 * (20 + number * 37 % 81);
        const std::string jpeg = VyrTests::BuildJpeg(FactsOf(number), size);
        std::ofstream file(folder / ("picture" + std::to_string(100000 + number) + ".jpg"), std::ios::binary);
        file.write(jpeg.data(), static_cast<std::streamsize>(jpeg.size()));
        if (!file.flush()) {
            std::cerr << "MakeDatedPictures: " << folder << " cannot be filled\n";
            return 1;
        }
    }
    return 0;
}
