#include "cases.h"

#include <gtest/gtest.h>
#include <string>

namespace zors::test {
namespace {

class Test : public testing::Test {
public:
    explicit Test(void (*run)()) : run_(run) {}
    void TestBody() override { run_(); }

private:
    void (*run_)();
};

void report(const testing::Message& message, Where where)
{
    ADD_FAILURE_AT(where.file, where.line) << message;
}

std::string text(Places places)
{
    std::string all;
    for (const std::ptrdiff_t place : places) all += " at " + std::to_string(place);
    return all;
}

} // namespace

Case::Case(const char* suite, const char* name, void (*run)(), Where where)
{
    const auto make = [=]() -> testing::Test* { return new Test(run); };
    testing::RegisterTest(suite, name, nullptr, nullptr, where.file, where.line, make);
}

void fail(Places places, Where where)
{
    report(testing::Message() << "does not hold" << text(places), where);
}

void failEqual(double got, double want, Places places, Where where)
{
    report(testing::Message() << got << ", not " << want << text(places), where);
}

} // namespace zors::test
