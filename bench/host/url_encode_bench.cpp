// The form encoding of one event body, compared with general-purpose encoders.

#include "bench/host/event_texts.h"
#include "ui/common/stat/url_encode.h"

#include <QByteArray>
#include <QString>
#include <QUrl>

#include <benchmark/benchmark.h>
#include <curl/curl.h>

#include <memory>

namespace {

std::string body(benchmark::State& state)
{
    std::string text = stats::buildEventBody(bench::sharedParams(), bench::eventTexts());
    const std::string one = text;
    for (auto copies = state.range(0); copies > 1; --copies)
        text += one;
    state.counters["bytes"] = static_cast<double>(text.size());
    return text;
}

void urlEncodeOurs(benchmark::State& state)
{
    const std::string text = body(state);
    for (auto _ : state)
        benchmark::DoNotOptimize(stats::urlEncode(text));
}

void urlEncodeCurl(benchmark::State& state)
{
    const std::string text = body(state);
    const std::unique_ptr<CURL, void (*)(CURL*)> handle(curl_easy_init(), curl_easy_cleanup);
    for (auto _ : state) {
        char* const encoded =
            curl_easy_escape(handle.get(), text.data(), static_cast<int>(text.size()));
        benchmark::DoNotOptimize(encoded);
        curl_free(encoded);
    }
}

void urlEncodeQByteArray(benchmark::State& state)
{
    const QByteArray text = QByteArray::fromStdString(body(state));
    for (auto _ : state)
        benchmark::DoNotOptimize(text.toPercentEncoding());
}

void urlEncodeQUrl(benchmark::State& state)
{
    const QString text = QString::fromStdString(body(state));
    for (auto _ : state)
        benchmark::DoNotOptimize(QUrl::toPercentEncoding(text));
}

} // namespace

BENCHMARK(urlEncodeOurs)->Arg(1)->Arg(10)->Arg(100);
BENCHMARK(urlEncodeCurl)->Arg(1)->Arg(10)->Arg(100);
BENCHMARK(urlEncodeQByteArray)->Arg(1)->Arg(10)->Arg(100);
BENCHMARK(urlEncodeQUrl)->Arg(1)->Arg(10)->Arg(100);
