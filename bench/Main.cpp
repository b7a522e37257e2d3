#include <windows.h>

#include <cstdio>
#include <string>

#include "bench/Bench.h"
#include "bench/Scene.h"

/// bench [--json FILE] [filter]: measures the rows whose name contains the filter, prints them and writes
/// them to the file. Exit code 1 when an aim was missed, 2 when the arguments or the file are no good.
/// bench --scene NAME: plays a scene instead.
int main(int count, char** arguments) {
    std::string json, filter;
    for (int i = 1; i < count; ++i) {
        const std::string argument = arguments[i];
        if (argument == "--json" && i + 1 < count) {
            json = arguments[++i];
        } else if (argument == "--scene" && i + 1 < count) {
            bench::Scene::Play(arguments[++i]);
            return 2;
        } else if (argument.starts_with("-") || !filter.empty()) {
            std::printf("usage: bench [--json FILE] [filter]\n");
            return 2;
        } else {
            filter = argument;
        }
    }

    bench::Runner runner(filter);
    bench::Suite::RunAll(runner);
    if (!json.empty() && !bench::WriteJson(json, runner.Results())) {
        std::printf("can't write %s\n", json.c_str());
        return 2;
    }
    int missed = 0;
    for (const bench::Result& result : runner.Results())
        missed += result.Reached() ? 0 : 1;
    std::printf("%zu rows, %d missed their aim\n", runner.Results().size(), missed);
    return missed ? 1 : 0;
}
