#include "layout/text/LanguageGuess.h"

#include "engine/layout/DraftSupport.h"

#include <gtest/gtest.h>

namespace orvane::layout {
namespace {

using tests::makeLine;
using tests::makePage;

std::string languageOf(const std::string& text) {
    PageText page = makePage(1);
    page.lines.push_back(makeLine(text, 72, 100));
    return guessLanguage({page}, TextParameters::Languages{});
}

TEST(LanguageGuess, KnowsLanguagesByTheirShortWords) {
    const struct {
        const char* language;
        const char* text;
    } rows[] = {
        {"en-US",
         "the end of the road is not as far from here as the people who live on it have said to us and to you"},
        {"de-DE", "das Ende der Straße ist nicht so weit von dem Ort wie die Leute sagen, die auch auf der Bank sitzen "
                  "und mit dem Hund gehen"},
        {"fr-FR",
         "la fin de la route est plus loin que ce que les gens qui sont dans le village ont dit sur elle et sur nous"},
        {"es-ES", "el fin de la calle no es tan largo como se lo dicen los que son de una casa en el pueblo y por eso "
                  "van con él"},
        {"pt-PT", "o fim da rua não é tão longe como os que são de uma casa do lugar dizem, com o que se vai para ela "
                  "em um dia"},
        {"sv-SE",
         "vägen är inte så lång som de säger och det är till slutet av den som vi går med er för att se på ett hus"},
        {"nb-NO",
         "veien er ikke så lang som de sier av seg selv og det er etter den som vi går med dere for å se på et hus"},
        {"da-DK",
         "vejen er ikke så lang som de siger af sig selv og det er efter den som vi går med jer for at se på et hus"},
        {"ru-RU",
         "и это не так далеко как они говорят, что он из дома на дороге, но за ним с горы в долину по пути к реке"},
        {"uk-UA",
         "і це не так далеко як вони кажуть, що він до дому на дорозі, та за ним з гори у долину або під ріку"},
        {"fa-IR", "این راه از خانه تا شهر است و آن را با ما یا به تو می رود که در آن یک باغ برای خود بود"},
        {"ar-SA", "هذا الطريق من البيت إلى المدينة أو في ما كان مع هذه التي على أن قد لا بعد كما بين الذي"},
    };
    for (const auto& row : rows)
        EXPECT_EQ(languageOf(row.text), row.language);
}

TEST(LanguageGuess, KnowsLanguagesByTheirScripts) {
    EXPECT_EQ(languageOf("이 길은 멀지 않다 or so"), "ko-KR");
    EXPECT_EQ(languageOf("この道は遠くない"), "ja-JP");
    EXPECT_EQ(languageOf("这条路对我们不远"), "zh-CN");
    EXPECT_EQ(languageOf("這條路對我們不遠"), "zh-TW");
    EXPECT_EQ(languageOf("ο δρόμος δεν είναι μακρύς"), "el-GR");
    EXPECT_EQ(languageOf("הדרך אינה ארוכה"), "he-IL");
    EXPECT_EQ(languageOf("ถนนไม่ยาว"), "th-TH");
}

TEST(LanguageGuess, SaysNothingWhereTheWordsDoNot) {
    EXPECT_EQ(languageOf(""), "");
    EXPECT_EQ(languageOf("the end of it"), "") << "too few";
    EXPECT_EQ(
        languageOf("Berlin 12 Paris 13 London 14 Madrid 15 Roma 16 Wien 17 Praha 18 Oslo 19 Kiel 20 Bonn 21 Ulm 22"),
        "");
}

} // namespace
} // namespace orvane::layout
