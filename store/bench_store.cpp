// Times the data file's two common costs on a temporary fresh file: one piece of work
// (open, one statement, close) and the save at exit. Prints the median of many runs.
#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <functional>
#include <string>
#include <vector>

#include "AppPath.h"
#include "FreshDataFile.h"
#include "SavedSetup.h"
#include "modDatabase.h"
#include "modGlobalVars.h"

namespace {
constexpr int Runs = 200;

double MedianMicroseconds(const std::function<void()>& work)
{
    std::vector<double> times;
    for (int i = 0; i < Runs; ++i) {
        const auto start = std::chrono::steady_clock::now();
        work();
        times.push_back(
            std::chrono::duration<double, std::micro>(std::chrono::steady_clock::now() - start)
                .count());
    }
    std::nth_element(times.begin(), times.begin() + Runs / 2, times.end());
    return times[Runs / 2];
}
}

int main()
{
    char pattern[] = "/tmp/zarvo-bench-XXXXXX";
    if (!mkdtemp(pattern))
        return 1;
    const std::string directory = pattern;
    SetAppPath(directory);
    std::string error;
    if (!WriteFreshDataFile(ZARVO_SCHEMA_FILE, AppFile("Zarvo.dat"), error)) {
        std::fprintf(stderr, "%s\n", error.c_str());
        return 1;
    }

    const double piece = MedianMicroseconds([] {
        OpenDataFile(false);
        gDataDatabase.OpenRecordset("SELECT Player.PlayerName FROM Player Player");
        CloseDataFile();
    });
    gPlayerNames.ReDim(4, "< Player 1 >");
    const double save = MedianMicroseconds([] { SaveSetup(SetupMarks{}); });

    std::printf("median of %d runs\n", Runs);
    std::printf("  open, one statement, close: %8.1f us\n", piece);
    std::printf("  SaveSetup (4 players):      %8.1f us\n", save);
    std::filesystem::remove_all(directory);
    return 0;
}
