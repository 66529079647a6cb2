#include "App/Application/LocaleNames.h"

namespace Ostrel::App {

const std::map<std::string, std::string>& GetLocaleNameTable()
{
    static const std::map<std::string, std::string> table = {
        {"en_US", "English"},
        {"ru_RU", "Русский"},
        {"de_DE", "Deutsch"},
        {"fr_FR", "Français"},
        {"es_ES", "Español"},
        {"it_IT", "Italiano"},
        {"ja_JP", "日本語"},
        {"nl_NL", "Nederlands"},
        {"pl_PL", "Polski"},
        {"pt_BR", "Português Brasileiro"},
        {"tr_TR", "Türkçe"},
        {"zh_CN", "简体中文"},
        {"ko_KR", "한국어"},
        {"zh_TW", "繁體中文"},
        {"ara", "Arabic"},
        {"bel", "Belarusian"},
        {"cat", "Catalan"},
        {"chi", "Chinese"},
        {"dan", "Danish"},
        {"und", ""},
        {"dut", "Dutch"},
        {"eng", "English"},
        {"fin", "Finnish"},
        {"fre", "French"},
        {"ger", "German"},
        {"heb", "Hebrew"},
        {"hin", "Hindi"},
        {"hun", "Hungarian"},
        {"ita", "Italian"},
        {"jpn", "Japanese"},
        {"nno", "Norwegian Nynorsk"},
        {"nob", "Norwegian Bokmål"},
        {"pol", "Polish"},
        {"por", "Portuguese"},
        {"rus", "Russian"},
        {"slv", "Slovenian"},
        {"spa", "Spanish"},
        {"swe", "Swedish"},
        {"tur", "Turkish"},
        {"ukr", "Ukrainian"},
    };
    return table;
}

std::string GetLocaleDisplayName(const std::string& locale)
{
    const auto& table = GetLocaleNameTable();
    const auto it = table.find(locale);
    return it == table.end() ? locale : it->second;
}

} // namespace Ostrel::App
