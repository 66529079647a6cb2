#pragma once

// Nag maps and web configurations of the model test, apart from its moc-parsed source.

inline const char* Json0()
{
    return R"({"nags": [
  {"mode": "any_mode", "action": "app_start", "source": "qrc:/NagScreen/app_start/main.qml", "id": "s1"},
  {"mode": "free", "action": "app_close", "source": "qrc:/NagScreen/app_close/main.qml", "id": "c1"},
  {"mode": "licensed", "action": "app_start", "source": "qrc:/NagScreen/before_routine/main.qml", "id": "s2"},
  {"mode": "free", "action": "before_routine", "source": "qrc:/NagScreen/before_routine/main.qml", "id": "b1",
   "disabled": true},
  {"mode": "free", "action": "major_update", "source": "qrc:/NagScreen/missing/main.qml", "id": "m1"},
  {"mode": "free", "action": "ask_for_review", "source": "https://nags.example/review", "id": "r1",
   "modules": ["editor"]}
]})";
}

inline const char* Json1()
{
    return R"({"nags": {}})";
}

inline const char* Json2()
{
    return R"({"nags": [{"mode": "free"}, 3, null]})";
}

inline const char* Json3()
{
    return R"({"nags": [{"mode": "free", "action": "a", "source": "x", "implementation": "flash"}]})";
}

inline const char* Json4()
{
    return R"({"nags": [{"mode": "free", "action": "a", "source": "x"}, {"mode": "free", "action": "a", "source": "y"}]})";
}

inline const char* Json5()
{
    return R"({"NagScreenSettings": {
            "SendNagHashEvent": {"DefaultValue": false, "Values": [
                {"Criteria": [{"Type": "Locale", "Value": "de_DE"}], "Value": true},
                {"Criteria": [{"Type": "Moon", "Value": "full"}], "Value": "nonsense"}]},
            "NagDimmingName": {"DefaultValue": 12},
            "NagsProhibitedToDisable": {"DefaultValue": "app_start, app_close,,"}}})";
}

inline const char* Json6()
{
    return R"({"NagScreenSettings": {"NagsProhibitedToDisable": {"DefaultValue": "app_start"}}})";
}

// The line that opens a tag of a TranslationUtils.js.
inline const char* Json7()
{
    return R"(^    ".*": \{$)";
}

inline const char* Json8()
{
    return R"({"NagScreenSettings": {"SendNagHashEvent": {"DefaultValue": true}}})";
}

inline const char* Json9()
{
    return R"({"UpdateCheckerResolver": {"IsUpdateAllowed": {"DefaultValue": true}}})";
}
