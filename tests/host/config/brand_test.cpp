#include "ui/common/config/brand.h"

#include <gtest/gtest.h>

namespace fs {

namespace {

using namespace std::string_literals;

} // namespace

TEST(Brand, FolderNameDecidesWhenItIsExactlyABrand)
{
    EXPECT_EQ(brandFromFolderName("Corvane"), "Corvane");
    EXPECT_EQ(brandFromFolderName("Lumacraft"), "Lumacraft");
    for (const char* name : {"", "corvane", "CORVANE", "lumacraft", "Corvane ", " Corvane",
                             "Lumacraft2", "Corvan", "Tessera", "C:"}) {
        SCOPED_TRACE(name);
        EXPECT_EQ(brandFromFolderName(name), std::nullopt);
    }
}

TEST(Brand, GlobalConfigDecides)
{
    struct Case
    {
        const char* what;
        std::string text;
        std::string expected;
    };
    const Case cases[] = {
        {"the plain line", "CompanyBrandMode=1\n", companyBrand},
        {"blanks around '=' and after the value", "CompanyBrandMode = 1 \n", companyBrand},
        {"tabs and CR LF", "CompanyBrandMode\t =\t 1\t \r\n", companyBrand},
        {"no final line feed", "CompanyBrandMode=1", companyBrand},
        {"lines before it", "\r\nno equals\nOther=1\n=1\nCompanyBrandMode=1\n", companyBrand},
        {"01 is not 1", "CompanyBrandMode=01\n", defaultBrand},
        {"0", "CompanyBrandMode=0\n", defaultBrand},
        {"10", "CompanyBrandMode=10\n", defaultBrand},
        {"true", "CompanyBrandMode=true\n", defaultBrand},
        {"a quoted 1", "CompanyBrandMode=\"1\"\n", defaultBrand},
        {"a second '='", "CompanyBrandMode==1\n", defaultBrand},
        {"an empty value", "CompanyBrandMode=\n", defaultBrand},
        {"a blank value", "CompanyBrandMode= \t \r\n", defaultBrand},
        {"a CR before the value is content", "CompanyBrandMode=\r1\n", defaultBrand},
        {"a NUL is content", "CompanyBrandMode=1\0\n"s, defaultBrand},
        {"the first line of the key decides", "CompanyBrandMode=0\nCompanyBrandMode=1\n",
         defaultBrand},
        {"later lines are not read", "CompanyBrandMode=1\nCompanyBrandMode=0\n", companyBrand},
        {"the first line decides even when empty", "CompanyBrandMode=\nCompanyBrandMode=1\n",
         defaultBrand},
        {"a blank before the key makes another key", " CompanyBrandMode=1\n", defaultBrand},
        {"other letter case", "companybrandmode=1\n", defaultBrand},
        {"a longer key", "CompanyBrandMode2=1\n", defaultBrand},
        {"a CR behind the key", "CompanyBrandMode\r=1\n", defaultBrand},
        {"the key without '='", "CompanyBrandMode\n1\n", defaultBrand},
        {"no line at all", "", defaultBrand},
        {"nothing but NULs", std::string(1000, '\0'), defaultBrand},
        {"nothing but line feeds", std::string(1000, '\n'), defaultBrand},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.what);
        EXPECT_EQ(brandFromGlobalConfig(c.text), c.expected);
    }
}

} // namespace fs
