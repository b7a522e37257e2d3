#include "bench/Bench.h"

#include <windows.h>

#include <algorithm>
#include <atomic>
#include <cstdio>
#include <map>

namespace bench {
namespace {

constexpr double BatchNs = 2'000'000;  // long against the clock's 100 ns and against filling the caches anew
constexpr double RowNs = 1'500'000'000.0;  // stop adding rounds after that
constexpr int LeastRounds = 5;
constexpr int MostRounds = 101;

double NowNs() {
    static const double frequency = [] {
        LARGE_INTEGER f;
        QueryPerformanceFrequency(&f);
        return static_cast<double>(f.QuadPart);
    }();
    LARGE_INTEGER now;
    QueryPerformanceCounter(&now);
    return static_cast<double>(now.QuadPart) * 1e9 / frequency;
}

double TimeNs(const std::function<void()>& work, int repeats) {
    const double start = NowNs();
    for (int i = 0; i < repeats; ++i)
        work();
    return (NowNs() - start) / repeats;
}

/// How often to repeat the work so that a batch is long enough to be measured.
int RepeatsFor(const std::function<void()>& work) {
    work();  // what is made on first use is not part of the measurement
    for (int repeats = 1;; repeats *= 4) {
        const double total = TimeNs(work, repeats) * repeats;
        if (total >= BatchNs / 4) return std::max(1, static_cast<int>(BatchNs / (total / repeats)));
    }
}

double Median(std::vector<double> values) {
    const auto middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
    std::nth_element(values.begin(), middle, values.end());
    return *middle;
}

std::string TimeText(double ns) {
    char text[32];
    if (ns < 1e4)
        std::snprintf(text, sizeof text, "%.0f ns", ns);
    else if (ns < 1e7)
        std::snprintf(text, sizeof text, "%.1f us", ns / 1e3);
    else
        std::snprintf(text, sizeof text, "%.1f ms", ns / 1e6);
    return text;
}

std::string AimText(const Aim& aim) {
    char text[48] = "";
    if (aim.Ratio > 0)
        std::snprintf(text, sizeof text, "<= %.3f", aim.Ratio);
    else if (aim.Nanoseconds > 0)
        std::snprintf(text, sizeof text, "<= %s", TimeText(aim.Nanoseconds).c_str());
    return text;
}

void Print(const Result& r) {
    static bool headed = false;
    if (!headed)
        std::printf("%-58s %10s  %-36s %10s %8s  %s\n", "operation", "ours", "peer", "", "ratio", "aim");
    headed = true;
    std::printf("%-58s %10s  %-36s %10s %8.3f  %s%s\n", r.Name.c_str(), TimeText(r.OursNs).c_str(),
                r.Peer.c_str(), TimeText(r.PeerNs).c_str(), r.Ratio(), AimText(r.Wanted).c_str(),
                r.Reached() ? "" : "  MISSED");
    std::fflush(stdout);
}

std::multimap<std::string, void (*)(Runner&)>& Suites() {
    static std::multimap<std::string, void (*)(Runner&)> suites;
    return suites;
}

std::string Quoted(const std::string& text) {
    std::string result = "\"";
    for (const char c : text) {
        if (c == '"' || c == '\\') result += '\\';
        result += c;
    }
    return result + '"';
}

}  // namespace

bool Result::Reached() const {
    return (Wanted.Ratio <= 0 || Ratio() <= Wanted.Ratio) &&
           (Wanted.Nanoseconds <= 0 || OursNs <= Wanted.Nanoseconds);
}

bool Runner::Wants(const std::string& name) const {
    return FFilter.empty() || name.find(FFilter) != std::string::npos;
}

void Runner::Row(const std::string& name, const std::string& peerName, Aim aim,
                 const std::function<void()>& ours, const std::function<void()>& peer) {
    if (!Wants(name)) return;
    const std::vector<double> times = Times({ours, peer});
    Add({name, peerName, aim, times[0], times[1]});
}

std::vector<double> Runner::Times(const std::vector<std::function<void()>>& works) {
    std::vector<int> repeats;
    for (const auto& work : works)
        repeats.push_back(RepeatsFor(work));
    std::vector<std::vector<double>> times(works.size());
    const double start = NowNs();
    for (int round = 0; round < MostRounds && (round < LeastRounds || NowNs() - start < RowNs); ++round) {
        for (std::size_t i = 0; i < works.size(); ++i)
            times[i].push_back(TimeNs(works[i], repeats[i]));
    }
    std::vector<double> medians;
    for (auto& of : times)
        medians.push_back(Median(std::move(of)));
    return medians;
}

void Runner::Add(Result result) {
    FResults.push_back(std::move(result));
    Print(FResults.back());
}

Suite::Suite(const char* name, void (*run)(Runner&)) {
    Suites().emplace(name, run);
}

void Suite::RunAll(Runner& runner) {
    for (const auto& [name, run] : Suites())
        run(runner);
}

bool WriteJson(const std::string& path, const std::vector<Result>& results) {
    std::FILE* file = std::fopen(path.c_str(), "wb");
    if (!file) return false;
    const char* separator = "[\n";
    for (const Result& r : results) {
        std::fprintf(
            file, "%s{\"name\": %s, \"ours_ns\": %.1f, \"peer\": %s, \"peer_ns\": %.1f, \"ratio\": %.4f}",
            separator, Quoted(r.Name).c_str(), r.OursNs, Quoted(r.Peer).c_str(), r.PeerNs, r.Ratio());
        separator = ",\n";
    }
    std::fputs(results.empty() ? "[]\n" : "\n]\n", file);
    return std::fclose(file) == 0;
}

void Use(const void* value) {
    static std::atomic<const void*> last;
    last.store(value, std::memory_order_relaxed);
}

}  // namespace bench
