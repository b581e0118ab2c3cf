// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#include "update/VersionManifest.h"

#include "unit/QtPrinters.h"

#include <gtest/gtest.h>

namespace keyvora {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr const char *page = "https://example.org/get";

} // namespace

TEST(VersionManifest, HasVersionAddressAndNotes)
{
    const auto manifest = VersionManifest::decode(
        R"({"version": "1.10", "url": "https://example.org/get", "notes": "Nové zkratky\n & more"})");
    ASSERT_TRUE(manifest.has_value());
    EXPECT_EQ(manifest->version, u"1.10"_s);
    EXPECT_EQ(manifest->url, QLatin1StringView(page));
    EXPECT_EQ(manifest->notes, u"Nové zkratky\n & more"_s);
}

TEST(VersionManifest, MayLackNotes)
{
    for (const char *json : {
             R"({"version": "2", "url": "https://example.org/get"})",
             R"({"version": "2", "url": "https://example.org/get", "notes": null})",
         }) {
        const auto manifest = VersionManifest::decode(json);
        ASSERT_TRUE(manifest.has_value()) << json;
        EXPECT_EQ(manifest->notes, std::nullopt) << json;
    }
}

TEST(VersionManifest, MayHaveEmptyTexts)
{
    const auto manifest = VersionManifest::decode(R"({"version": "", "url": "", "notes": ""})");
    EXPECT_EQ(manifest, (VersionManifest{.version = u""_s, .url = u""_s, .notes = u""_s}));
}

TEST(VersionManifest, PassesOverOtherKeys)
{
    const auto manifest = VersionManifest::decode(
        R"({"Version": 7, "build": [1, {"version": 2}], "version": "2", "sha": null, "url": "https://example.org/get"})");
    ASSERT_TRUE(manifest.has_value());
    EXPECT_EQ(manifest->version, u"2"_s);
}

TEST(VersionManifest, NeedsTexts)
{
    for (const char *json : {
             R"({"url": "https://example.org/get"})",
             R"({"version": "2"})",
             R"({"version": null, "url": "https://example.org/get"})",
             R"({"version": 2, "url": "https://example.org/get"})",
             R"({"version": ["2"], "url": "https://example.org/get"})",
             R"({"version": "2", "url": null})",
             R"({"version": "2", "url": {"en": "https://example.org/get"}})",
             R"({"version": "2", "url": "https://example.org/get", "notes": 5})",
             R"({"version": "2", "url": "https://example.org/get", "notes": false})",
             R"({"version": "2", "url": "https://example.org/get", "notes": ["a"]})",
             R"({"version": "2", "url": "https://example.org/get", "notes": {"en": "a"}})",
         })
        EXPECT_EQ(VersionManifest::decode(json), std::nullopt) << json;
}

TEST(VersionManifest, NeedsAnObject)
{
    const QByteArray whole = R"({"version": "2", "url": "https://example.org/get"})";
    ASSERT_TRUE(VersionManifest::decode(whole).has_value());
    for (const QByteArray &json :
         {QByteArray(), QByteArray("null"), QByteArray("\"2\""), '[' + whole + ']', whole.chopped(1),
          whole + '}', whole + whole, QByteArray("<html></html>"), QByteArray("\xFF\xFE\x00{", 4),
          QByteArray("{\"version\": \"\xC3\x28\", \"url\": \"u\"}"), QByteArray(60'000, '['),
          QByteArray("{\"a\":").repeated(12'000), QByteArray(1000, '\0')})
        EXPECT_EQ(VersionManifest::decode(json), std::nullopt) << json.left(80).toStdString();
}

} // namespace keyvora
