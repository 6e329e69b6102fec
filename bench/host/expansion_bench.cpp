// The expansion of one event body, compared with template libraries and plain concatenation. The
// libraries parse their template beforehand, the program each time.

#include "bench/host/event_texts.h"
#include "ui/common/stat/template_params.h"

#include <benchmark/benchmark.h>
#include <ctemplate/template.h>
#include <ctemplate/template_dictionary.h>
#include <kainjow/mustache.hpp>

#include <memory>
#include <stdexcept>

namespace {

stats::TemplateParams allParams()
{
    stats::TemplateParams params;
    params.set(bench::bodyValues(), true);
    return params;
}

std::string expected()
{
    return stats::buildEventBody(bench::sharedParams(), bench::eventTexts());
}

// All must produce the same text.
void check(const std::string& text)
{
    if (text != expected())
        throw std::logic_error("wrong body: " + text);
}

void expansionOurs(benchmark::State& state)
{
    const stats::TemplateParams params = allParams();
    const std::string source = bench::bodyTemplate("{", "}");
    check(params.expand(source, false).text);
    for (auto _ : state)
        benchmark::DoNotOptimize(params.expand(source, false));
}

// The lower bound, without any template: literals and values are appended.
std::string concatenate(const std::vector<std::string>& values)
{
    std::string text;
    text.reserve(800);
    text += R"({"guid":")";
    text += values[0];
    text += R"(","country_id":")";
    text += values[1];
    text += R"(","pid":"","adv_type":")";
    text += values[2];
    text += R"(","camp_type":")";
    text += values[3];
    text += R"(","appid":")";
    text += values[4];
    text += R"(","ver":")";
    text += values[5];
    text += R"(","event_type":")";
    text += values[6];
    text += R"(","event_number":")";
    text += values[7];
    text += R"(","src":")";
    text += values[8];
    text += R"(","info_type":")";
    text += values[9];
    text += R"(","info":")";
    text += values[10];
    text += R"(","inst_type":")";
    text += values[11];
    text += R"(","inst_ch":")";
    text += values[12];
    text += R"(","inst_ref":")";
    text += values[13];
    text += R"(","test":")";
    text += values[14];
    text += R"(","tc_build_num":")";
    text += values[15];
    text += R"(","product_name":"","id_lmc_keys":""})";
    return text;
}

void expansionConcatenation(benchmark::State& state)
{
    std::vector<std::string> values;
    for (const auto& [name, value] : bench::bodyValues())
        values.push_back(value);
    check(concatenate(values));
    for (auto _ : state)
        benchmark::DoNotOptimize(concatenate(values));
}

std::unique_ptr<ctemplate::Template> ctemplateOf(const std::string& source)
{
    return std::unique_ptr<ctemplate::Template>(
        ctemplate::Template::StringToTemplate(source, ctemplate::DO_NOT_STRIP));
}

std::string expandCtemplate(ctemplate::Template& prepared,
                            const ctemplate::TemplateDictionary& values)
{
    std::string text;
    prepared.Expand(&text, &values);
    return text;
}

void fill(ctemplate::TemplateDictionary& values)
{
    for (const auto& [name, value] : bench::bodyValues())
        values.SetValue(name, value);
}

void expansionCtemplate(benchmark::State& state)
{
    ctemplate::TemplateDictionary values("event");
    fill(values);
    const auto prepared = ctemplateOf(bench::bodyTemplate("{{", "}}"));
    check(expandCtemplate(*prepared, values));
    for (auto _ : state)
        benchmark::DoNotOptimize(expandCtemplate(*prepared, values));
}

kainjow::mustache::data mustacheValues()
{
    kainjow::mustache::data values;
    for (const auto& [name, value] : bench::bodyValues())
        values.set(name, value);
    return values;
}

void expansionMustache(benchmark::State& state)
{
    const kainjow::mustache::data values = mustacheValues();
    kainjow::mustache::mustache prepared(bench::bodyTemplate("{{{", "}}}"));
    check(prepared.render(values));
    for (auto _ : state)
        benchmark::DoNotOptimize(prepared.render(values));
}

} // namespace

BENCHMARK(expansionOurs);
BENCHMARK(expansionConcatenation);
BENCHMARK(expansionCtemplate);
BENCHMARK(expansionMustache);
