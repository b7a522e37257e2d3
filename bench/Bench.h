#pragma once

#include <functional>
#include <string>
#include <vector>

namespace bench {

/// What a row must show; what is 0 is not asked for.
struct Aim {
    double Ratio = 0;        ///< Our time divided by the peer's, at most.
    double Nanoseconds = 0;  ///< Our time, at most.
};

/// The measured figures of one row.
struct Result {
    std::string Name;
    std::string Peer;
    Aim Wanted;
    double OursNs = 0;
    double PeerNs = 0;
    [[nodiscard]] double Ratio() const { return PeerNs > 0 ? OursNs / PeerNs : 0; }
    [[nodiscard]] bool Reached() const;
};

/// Takes the time of operations against peers. Both run alternately in the same process, in batches long
/// enough for the clock; the figures are medians, so that what else the machine does counts little.
class Runner {
public:
    /// Rows whose name lacks `filter` are skipped; an empty filter runs all.
    explicit Runner(std::string filter) : FFilter(std::move(filter)) {}

    /// Measures `ours` against `peer`, prints the row and keeps it. `peerName` says what the peer does, such
    /// as "TransparentBlt".
    void Row(const std::string& name, const std::string& peerName, Aim aim, const std::function<void()>& ours,
             const std::function<void()>& peer);
    /// Takes the times of works alternately: a median for each, in nanoseconds. For rows of more than two.
    [[nodiscard]] static std::vector<double> Times(const std::vector<std::function<void()>>& works);
    /// Prints a row whose figures come from `Times`, and keeps it.
    void Add(Result result);
    /// True when a row of that name will be measured; for rows whose preparation is expensive.
    [[nodiscard]] bool Wants(const std::string& name) const;
    [[nodiscard]] const std::vector<Result>& Results() const { return FResults; }

private:
    std::string FFilter;
    std::vector<Result> FResults;
};

/// A group of rows, registered by a variable in the source file that holds them:
/// `const bench::Suite buttons("buttons", [](bench::Runner& runner) { ... });`
class Suite {
public:
    Suite(const char* name, void (*run)(Runner&));
    /// Runs all suites in the order of their names.
    static void RunAll(Runner& runner);
};

/// Writes an array of {"name", "ours_ns", "peer", "peer_ns", "ratio"}; false when the file can't be written.
[[nodiscard]] bool WriteJson(const std::string& path, const std::vector<Result>& results);

/// Keeps the compiler from leaving out work whose result nobody reads.
void Use(const void* value);

}  // namespace bench
