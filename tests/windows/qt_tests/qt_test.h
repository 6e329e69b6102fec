#pragma once

// The Qt tests are one program, so that Qt is linked once: qt_tests.exe TEST [ARGUMENTS...], where
// TEST is the name of a class. Each source registers its class at its end:
//
//     TESSERA_QT_TEST(WidgetFormTest)
//     #include "widget_form_test.moc"

#include <QtTest>

namespace windows_tests {

struct QtTest
{
    const char* name;
    int (*run)(int argc, char** argv);
    // Called before the application object is created; may be null.
    void (*prepare)();
};

// Called by static initialisers only. Always true.
bool registerQtTest(const QtTest& test);

template <class Test>
int runQtTest(int argc, char** argv)
{
    Test test;
    return QTest::qExec(&test, argc, argv);
}

} // namespace windows_tests

#define TESSERA_QT_TEST(Class) TESSERA_PREPARED_QT_TEST(Class, nullptr)

// For a test with work to do before there is an application object. `prepare` also sets all of that
// object's attributes.
#define TESSERA_PREPARED_QT_TEST(Class, prepare)                                                   \
    [[maybe_unused]] static const bool isRegistered##Class =                                       \
        windows_tests::registerQtTest({#Class, &windows_tests::runQtTest<Class>, prepare});
