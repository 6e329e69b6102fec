#include "tests/windows/qt_tests/qt_test.h"

#include <QApplication>
#include <QLoggingCategory>

#include <algorithm>
#include <cstdio>
#include <cstring>
#include <vector>

namespace windows_tests {

namespace {

std::vector<QtTest>& allTests()
{
    static std::vector<QtTest> tests;
    return tests;
}

} // namespace

bool registerQtTest(const QtTest& test)
{
    allTests().push_back(test);
    return true;
}

} // namespace windows_tests

namespace {

using windows_tests::QtTest;

int listTests(std::FILE* stream)
{
    std::fputs("usage: qt_tests TEST [ARGUMENTS OF QT TEST...]\n", stream);
    for (const QtTest& test : windows_tests::allTests())
        std::fprintf(stream, "  %s\n", test.name);
    return stream == stdout ? 0 : 2;
}

} // namespace

int main(int argc, char** argv)
{
    if (argc < 2)
        return listTests(stdout);
    const auto& tests = windows_tests::allTests();
    const auto test = std::find_if(tests.begin(), tests.end(), [argv](const QtTest& each) {
        return std::strcmp(each.name, argv[1]) == 0;
    });
    if (test == tests.end())
        return listTests(stderr);
    std::rotate(argv + 1, argv + 2, argv + argc);
    --argc;
    argv[argc] = nullptr;
    // Qt tells at every use that it does not know the style sheets' "font-color".
    QLoggingCategory::setFilterRules(QStringLiteral("default.debug=false"));
    if (test->prepare != nullptr)
        test->prepare();
    QApplication application(argc, argv);
    // Windows have the same size on every screen.
    if (test->prepare == nullptr)
        QApplication::setAttribute(Qt::AA_Use96Dpi);
    return test->run(argc, argv);
}
