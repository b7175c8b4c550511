// The lower limit for renaming many files: a bare loop of rename calls in the current folder.
// Use: RenameLoop COUNT   from IMG_00000.jpg to Trip_00000.jpg and so on
#include <cstdio>
#include <cstdlib>

int main(int argumentCount, char** arguments)
{
    const int count = argumentCount > 1 ? std::atoi(arguments[1]) : 0;
    for (int index = 0; index < count; ++index) {
        char from[32];
        char to[32];
        std::snprintf(from, sizeof(from), "IMG_%05d.jpg", index);
        std::snprintf(to, sizeof(to), "Trip_%05d.jpg", index);
        if (std::rename(from, to) != 0) {
            std::perror(from);
            return EXIT_FAILURE;
        }
    }
    return EXIT_SUCCESS;
}
