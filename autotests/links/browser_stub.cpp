// Stands in for a browser: appends each argument it got on a line of its own to the file named
// by OSTREL_BROWSER_STUB_RECORD, then a line "--end--".

#include <cstdio>
#include <cstdlib>

int main(int argc, char** argv)
{
    const char* record = std::getenv("OSTREL_BROWSER_STUB_RECORD");
    if (!record)
        return 2;
    std::FILE* file = std::fopen(record, "a");
    if (!file)
        return 3;
    for (int i = 1; i < argc; ++i)
        std::fprintf(file, "%s\n", argv[i]);
    std::fprintf(file, "--end--\n");
    std::fclose(file);
    return 0;
}
