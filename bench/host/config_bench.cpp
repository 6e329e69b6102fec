// Settings files of 100, 10,000 and 100,000 keys: parsing (with keys in the order in which the
// program writes them, and shuffled), looking up a key, and writing. QSettings works only on files;
// its file is in memory.

#include "ui/common/config/config_text.h"

#include <QSettings>
#include <QString>

#include <benchmark/benchmark.h>
#include <INIReader.h>
#include <SimpleIni.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <random>
#include <stdexcept>
#include <string>
#include <unistd.h>
#include <vector>

namespace {

enum Order { ascending, shuffled };

std::string keyOf(long index)
{
    std::string digits = std::to_string(index);
    return "Setting" + std::string(6 - digits.size(), '0') + digits;
}

std::string textOf(benchmark::State& state)
{
    const long count = state.range(0);
    std::vector<long> indices(static_cast<std::size_t>(count));
    for (long index = 0; index < count; ++index)
        indices[static_cast<std::size_t>(index)] = index;
    if (state.range(1) == shuffled)
        std::shuffle(indices.begin(), indices.end(), std::mt19937(1));
    std::string text;
    for (const long index : indices)
        text += keyOf(index) + "=" + std::to_string(index * 7919) + "\n";
    state.counters["keys"] = static_cast<double>(count);
    return text;
}

// Keys in random order.
std::vector<std::string> questions(long count)
{
    std::vector<std::string> keys;
    std::mt19937 random(2);
    for (int index = 0; index < 1000; ++index)
        keys.push_back(keyOf(std::uniform_int_distribution<long>(0, count - 1)(random)));
    return keys;
}

void require(bool condition)
{
    if (!condition)
        throw std::logic_error("a library did not read what was written");
}

// A file in memory, removed with its owner.
class MemoryFile
{
public:
    explicit MemoryFile(const std::string& text)
        : path("/dev/shm/config_bench_" + std::to_string(getpid()) + ".ini")
    {
        std::ofstream(path, std::ios::binary) << text;
    }
    ~MemoryFile() { std::filesystem::remove(path); }
    MemoryFile(const MemoryFile&) = delete;
    MemoryFile& operator=(const MemoryFile&) = delete;

    // QSettings keeps what it has read until the file's time changes.
    void touch()
    {
        std::filesystem::last_write_time(path, std::filesystem::last_write_time(path) +
                                                   std::chrono::seconds(1));
    }
    QString name() const { return QString::fromStdString(path.string()); }

private:
    std::filesystem::path path;
};

void parseOurs(benchmark::State& state)
{
    const std::string text = textOf(state);
    for (auto _ : state) {
        fs::ConfigValues values;
        fs::parseConfigText(text, values);
        benchmark::DoNotOptimize(values);
        require(static_cast<long>(values.size()) == state.range(0));
    }
}

void parseSimpleIni(benchmark::State& state)
{
    const std::string text = textOf(state);
    for (auto _ : state) {
        CSimpleIniCaseA ini;
        require(ini.LoadData(text) == SI_OK);
        require(ini.GetSectionSize("") == state.range(0));
    }
}

void parseInih(benchmark::State& state)
{
    const std::string text = textOf(state);
    for (auto _ : state) {
        INIReader ini(text.data(), text.size());
        require(ini.ParseError() == 0);
    }
}

void parseQSettings(benchmark::State& state)
{
    MemoryFile file(textOf(state));
    for (auto _ : state) {
        state.PauseTiming();
        file.touch();
        state.ResumeTiming();
        const QSettings ini(file.name(), QSettings::IniFormat);
        require(ini.contains("Setting000000"));
    }
}

void lookUpOurs(benchmark::State& state)
{
    fs::ConfigValues values;
    fs::parseConfigText(textOf(state), values);
    const std::vector<std::string> keys = questions(state.range(0));
    std::size_t next = 0;
    for (auto _ : state) {
        benchmark::DoNotOptimize(std::string(values.find(keys[next])->second));
        next = (next + 1) % keys.size();
    }
}

void lookUpSimpleIni(benchmark::State& state)
{
    CSimpleIniCaseA ini;
    ini.LoadData(textOf(state));
    const std::vector<std::string> keys = questions(state.range(0));
    std::size_t next = 0;
    for (auto _ : state) {
        benchmark::DoNotOptimize(std::string(ini.GetValue("", keys[next].c_str())));
        next = (next + 1) % keys.size();
    }
}

void lookUpInih(benchmark::State& state)
{
    const std::string text = textOf(state);
    const INIReader ini(text.data(), text.size());
    const std::vector<std::string> keys = questions(state.range(0));
    std::size_t next = 0;
    for (auto _ : state) {
        benchmark::DoNotOptimize(ini.Get("", keys[next], ""));
        next = (next + 1) % keys.size();
    }
}

void lookUpQSettings(benchmark::State& state)
{
    const MemoryFile file(textOf(state));
    const QSettings ini(file.name(), QSettings::IniFormat);
    std::vector<QString> keys;
    for (const std::string& key : questions(state.range(0)))
        keys.push_back(QString::fromStdString(key));
    std::size_t next = 0;
    for (auto _ : state) {
        benchmark::DoNotOptimize(ini.value(keys[next]).toString());
        next = (next + 1) % keys.size();
    }
}

void writeOurs(benchmark::State& state)
{
    fs::ConfigValues values;
    fs::parseConfigText(textOf(state), values);
    for (auto _ : state)
        benchmark::DoNotOptimize(fs::serialiseConfig(values));
}

void writeSimpleIni(benchmark::State& state)
{
    CSimpleIniCaseA ini;
    ini.LoadData(textOf(state));
    for (auto _ : state) {
        std::string text;
        require(ini.Save(text) == SI_OK);
        benchmark::DoNotOptimize(text);
    }
}

void writeQSettings(benchmark::State& state)
{
    const MemoryFile file(textOf(state));
    QSettings ini(file.name(), QSettings::IniFormat);
    int round = 0;
    for (auto _ : state) {
        ini.setValue("Setting000000", ++round);
        ini.sync();
    }
}

void sizesInOneOrder(benchmark::internal::Benchmark* benchmark)
{
    for (const long keys : {100L, 10'000L, 100'000L})
        benchmark->Args({keys, ascending});
}

void sizesInBothOrders(benchmark::internal::Benchmark* benchmark)
{
    sizesInOneOrder(benchmark);
    for (const long keys : {100L, 10'000L, 100'000L})
        benchmark->Args({keys, shuffled});
}

} // namespace

BENCHMARK(parseOurs)->Apply(sizesInBothOrders);
BENCHMARK(parseSimpleIni)->Apply(sizesInBothOrders);
BENCHMARK(parseInih)->Apply(sizesInBothOrders);
BENCHMARK(parseQSettings)->Apply(sizesInBothOrders);
BENCHMARK(lookUpOurs)->Apply(sizesInOneOrder);
BENCHMARK(lookUpSimpleIni)->Apply(sizesInOneOrder);
BENCHMARK(lookUpInih)->Apply(sizesInOneOrder);
BENCHMARK(lookUpQSettings)->Apply(sizesInOneOrder);
BENCHMARK(writeOurs)->Apply(sizesInOneOrder);
BENCHMARK(writeSimpleIni)->Apply(sizesInOneOrder);
BENCHMARK(writeQSettings)->Apply(sizesInOneOrder);
