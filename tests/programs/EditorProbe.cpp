// For tests: an editor. It takes FIND, WITH and a file, puts WITH in place of every FIND in the file, and ends with 0;
// where FIND is "fail" it ends with 3 and changes nothing, and where it is "remove" it removes the file WITH instead.
#include <cstdio>
#include <fstream>
#include <sstream>
#include <string>

int main(int count, char** arguments)
{
    if (count != 4)
        return 2;
    const std::string find = arguments[1];
    const std::string with = arguments[2];
    if (find == "fail")
        return 3;
    if (find == "remove")
        return std::remove(with.c_str()) == 0 ? 0 : 1;
    std::ifstream input(arguments[3], std::ios::binary);
    std::ostringstream content;
    content << input.rdbuf();
    input.close();
    std::string text = content.str();
    for (std::size_t found = text.find(find); found != std::string::npos; found = text.find(find, found + with.size()))
        text.replace(found, find.size(), with);
    std::ofstream output(arguments[3], std::ios::binary);
    output << text;
    return output.flush() ? 0 : 1;
}
