// Every link key against the vocabulary tables: its number, its name, and its template, built
// here from the rows of the tables rather than copied from the header.

#include "Interfaces/URLKeys.h"

#include "TestEnvironment.h"

#include <QRegularExpression>

#include <set>
#include <vector>

using namespace Ostrel::App;

namespace {

struct StandardRow
{
    const char* stem;
    const char* path;
    std::vector<const char*> sources;
};

struct DepartureRow
{
    std::vector<const char*> keys;
    const char* endpoint;
    const char* pathAndQuery;
};

// The standard form: (stem, path, sources); "" is the stem alone.
const std::vector<StandardRow>& standardRows()
{
    static const std::vector<StandardRow> rows = {
        {"FAQ_URL", "/faq/", {"menu", "menuabout", "erroroffline", "erroropengl", "generic_capture_init_error", "screen_capture_init_error", "scrolling_screenshot_error", ""}},
        {"BUY_NOW_URL", "/buynow/", {"menu", "firststart", "nag_authorization_window_buynow", "sidebar", "se", "traymenu", "lifetimeonly", "traymenulifetimeonly", ""}},
        {"HOMEPAGE_URL", "/", {"menu", "menuabout", "socialtab"}},
        {"DOWNLOAD_URL", "/download/", {"checkupdatest"}},
        {"HELP_URL", "/help/", {"menu"}},
        {"LIVECHAT_URL", "/support/", {"menu"}},
        {"CONTACT_SUPPORT_URL", "/support/contact/", {"menu"}},
        {"GET_MORE_SOFTWARE_URL", "/offer-get-more/", {"menu"}},
        {"PRIVACY_POLICY_URL", "/privacy/", {"feedback", ""}},
        {"TERMS_OF_USE_URL", "/terms/", {""}},
        {"DATA_ON_CHILDREN_URL", "/data-on-children/", {"feedback"}},
        {"GOOGLE_PRIVACY_POLICY_URL", "/google-privacy/", {""}},
        {"YOUTUBE_TERMS_OF_SERVICES_URL", "/youtube-terms/", {""}},
        {"GOOGLE_SECURITY_PERMISSIONS_URL", "/myaccount-google/", {""}},
        {"UPLOAD_ITUNES_URL", "/itunes/", {"other"}},
        {"DRIVER_UPDATE_GUIDE_URL", "/drivers-update/", {"other"}},
        {"FORUM_URL", "/forum/", {"socialtab", "menu"}},
        {"INSTAGRAM_URL", "/instagram/", {"socialtab", "menu"}},
        {"FACEBOOK_URL", "/facebook/", {"socialtab", "menu"}},
        {"ODNOKLASSNIKI_URL", "/odnoklassniki/", {"socialtab", "menu"}},
        {"VKONTAKTE_URL", "/vkontakte/", {"socialtab", "menu"}},
        {"YOU_TUBE_URL", "/youtube/", {"socialtab", "menu"}},
        {"GOOGLE_PLUS_URL", "/googleplus/", {"socialtab"}},
        {"INSTRUCTION_FOR_ERROR_CHANNEL_SOUND_URL", "/kb_sound/", {"kb_sound"}},
        {"INSTRUCTION_FOR_CHANGED_SELECT_VIDEOCARDS_URL", "/kb_tip/", {"kb_tip"}},
        {"OFFER_ORDER_URL", "/buy-benchfromcapture/", {"menu"}},
        {"BUY_BUNDLE_URL", "/buy-bundlefromcapture/", {"menu"}},
        {"BUY_CW_URL", "/buy-cwplusfromcapdesk/", {"editorWindow"}},
        {"DOWNLOAD_PLATFORM_URL", "/download-ostrelbench/", {"widgetlk"}},
    };
    return rows;
}

// Templates that depart from it: (keys, endpoint, path and query as the table gives it).
const std::vector<DepartureRow>& departureRows()
{
    static const std::vector<DepartureRow> rows = {
        {{"LEARN_MORE_ACCELERATIONS_URL_CD_settings"}, "links", "\"/learn-more-accelerations/?asrc=settings&-TAIL_WITH_ARGS-\""},
        {{"LEARN_MORE_HOTKEYS_URL_CD_tooltip"}, "links", "\"/learn-more-hotkeys/?asrc=tooltip&-TAIL_WITH_ARGS-\""},
        {{"TRUSTPILOT_URL_feedback_dialog"}, "links", "\"/leave-feedback/?asrc=feedback_dialog&-TAIL_WITH_ARGS-&target_url=trustpilot\""},
        {{"WHAT_IS_PLATFORM_URL"}, "links", "\"/ostrel-bench/?-TAIL_WITH_ARGS-&asrc=vidgetlk&stub\""},
        {{"THANK_FOR_INSTALL_URL"}, "links", "\"/thank_you_for_install/?-TAIL_WITH_ARGS-\", then in order \"-AMP-version=-APP_VERSION-\", \"-AMP-name=-NAME-\", \"-AMP-email=-EMAIL-\", \"-AMP-isNewsletterConfirmed=-NEWSLETTER_CONFIRMED-\", \"-AMP-isToolbarInstalled=-ADDITIONALS_INSTALLED-\", and a final \"-AMP-\" with nothing behind it"},
        {{"THANK_FOR_REINSTALL_URL"}, "links", "\"/thank_you_for_install/?-TAIL_WITH_ARGS-\", then \"-AMP-version=-APP_VERSION-\", \"-AMP-isToolbarInstalled=-ADDITIONALS_INSTALLED-\""},
        {{"FEEDBACK_URL_POST"}, "feedback", "\"/feedback/feedback?asrc=&-TAIL_WITH_ARGS-\""},
        {{"FEEDBACK_URL_GET"}, "feedback", "\"/feedback/feedback?asrc=&-TAIL_WITH_ARGS-&email=%1&feedback=%2\""},
        {{"NPS_URL_POST"}, "feedback", "\"/feedback/nps/?asrc=&-TAIL_WITH_ARGS-\""},
        {{"WEB_CONFIG_URL"}, "configuration", "\"/api/v1/?asrc=&-TAIL_WITH_ARGS-\""},
        {{"NAGS_REQUEST_URL"}, "message service", "\"/get_nag.php\""},
        {{"NAGS_DYNAMIC_CONFIG_URL"}, "message service", "\"/nagscreen/map?asrc=&-TAIL_WITH_ARGS-\""},
        {{"SPARKLE_APPCAST_URL"}, "content", "\"/sparkle/capdesk/win/x86_64/appcast/appcast.xml\""},
        {{"CHANGELOG_URL"}, "content", "\"/configs/changelog/capdesk/win/x86_64/-LANG-/changelog\""},
        {{"CHECK_FOR_UPDATES_URL"}, "content", "\"/configs/changelog/capdesk/win/x86_64/-LANG-/pkginfo\""},
        {{"SUPPORT_DEVICE_LIST_URL"}, "content", "\"/configs/common/support/DevicesList\""},
        {{"SOFTWARE_OPENGL_URL"}, "content", "\"/content/common/support/opengl32software_win64_4_5.zip\""},
        {{"COLLECT_EMAIL_URL"}, "subscriptions", "\"/subscribe/v2/desktop/?asrc=&-TAIL_WITH_ARGS-\", then \"-AMP-name=-NAME-\", \"-AMP-email=-EMAIL-\""},
        {{"OSTREL_CLOUD_API_URL"}, "cloud", "\"/%1\""},
        {{"HOMEPAGE_URL_youtube_description"}, "product site", "\"/capture-desk-personal\""},
        {{"CUSTOM_ABOUT_URL", "CUSTOM_ABOUT_CAPTION_URL", "CUSTOM_WEB_NAG_URL"}, "none", "the empty string"},
        {{"FACEBOOK_GRAPH_URL"}, "Facebook Graph API", "\"/v2.9/%1\""},
        {{"FACEBOOK_GRAPH_VIDEO_URL"}, "Facebook Graph API, video host", "\"/v2.9/%1/videos\""},
        {{"FACEBOOK_AUTH_URL"}, "Facebook site", "\"/v2.9/dialog/oauth?\""},
        {{"FACEBOOK_PROFILE_URL", "FACEBOOK_LINK_TO_POST_URL"}, "Facebook site", "\"/%1\""},
        {{"FACEBOOK_PHOTO_URL"}, "Facebook site", "\"/photo.php?fbid=%1\""},
        {{"FACEBOOK_VIDEO_URL"}, "Facebook site", "\"/me/videos/%1\""},
        {{"GOOGLE_DRIVE_AUTH_URL"}, "Google Drive site", "\"/?authuser=%1\""},
        {{"GOOGLE_DRIVE_SHARED_URL"}, "Google Drive site", "\"/open?id=%1\""},
        {{"GOOGLE_DRIVE_API_URL"}, "Google APIs", "\"/drive/v3/%1\""},
        {{"GOOGLE_DRIVE_UPLOAD_URL"}, "Google APIs", "\"/upload/drive/v3/files?uploadType=resumable\""},
        {{"YOUTUBE_PROFILE_URL"}, "Google APIs", "\"/oauth2/v1/userinfo?alt=json\""},
        {{"YOUTUBE_API_URL"}, "Google APIs", "\"/youtube/v3/%1\""},
        {{"YOUTUBE_UPLOAD_URL"}, "Google APIs", "\"/upload/youtube/v3/videos?uploadType=resumable&part=%1\""},
        {{"YOUTUBE_CHANNEL_URL"}, "YouTube site", "\"/channel/%1\""},
        {{"YOUTUBE_VIDEO_URL"}, "YouTube site", "\"/watch?v=%1\""},
        {{"VIMEO_API_URL"}, "Vimeo API", "\"/%1\""},
        {{"VIMEO_AVATAR_URL"}, "Vimeo image host", "\"/portrait/%1_300x300\""},
        {{"VIMEO_DEFAULT_AVATAR_URL"}, "an image proxy in front of the Vimeo image host", "\"portrait/defaults-green_300x300.png?ssl=1\" on that host"},
        {{"TIKTOK_AUTH_URL"}, "TikTok site", "\"/v2/auth/authorize/\""},
        {{"TIKTOK_TOKEN_URL"}, "TikTok open API", "\"/v2/oauth/token/?\""},
        {{"TIKTOK_UPLOAD_URL"}, "TikTok open API", "\"/v2/post/publish/inbox/video/init/\""},
        {{"TIKTOK_PROFILE_URL"}, "TikTok open API", "\"/v2/user/info/?\""},
    };
    return rows;
}

const std::vector<std::pair<const char*, int>>& keyNumbers()
{
    static const std::vector<std::pair<const char*, int>> numbers = {
        {"FAQ_URL_menu", 1}, {"FAQ_URL_menuabout", 2}, {"FAQ_URL_erroroffline", 4}, {"FAQ_URL", 5},
        {"BUY_NOW_URL_menu", 6}, {"BUY_NOW_URL_firststart", 8}, {"BUY_NOW_URL_nag_authorization_window_buynow", 14},
        {"BUY_NOW_URL", 17}, {"HOMEPAGE_URL_menu", 19}, {"HOMEPAGE_URL_menuabout", 20},
        {"HOMEPAGE_URL_socialtab", 21}, {"DOWNLOAD_URL_checkupdatest", 22}, {"HELP_URL_menu", 24},
        {"LIVECHAT_URL_menu", 25}, {"CONTACT_SUPPORT_URL_menu", 31}, {"GET_MORE_SOFTWARE_URL_menu", 33},
        {"CUSTOM_ABOUT_URL", 34}, {"CUSTOM_ABOUT_CAPTION_URL", 35}, {"CUSTOM_WEB_NAG_URL", 36},
        {"THANK_FOR_INSTALL_URL", 37}, {"THANK_FOR_REINSTALL_URL", 38}, {"FEEDBACK_URL_POST", 40},
        {"FEEDBACK_URL_GET", 41}, {"NPS_URL_POST", 42}, {"PRIVACY_POLICY_URL", 43}, {"WEB_CONFIG_URL", 44},
        {"SPARKLE_APPCAST_URL", 45}, {"NAGS_REQUEST_URL", 53}, {"FACEBOOK_GRAPH_URL", 54},
        {"FACEBOOK_GRAPH_VIDEO_URL", 55}, {"FACEBOOK_AUTH_URL", 56}, {"FACEBOOK_PROFILE_URL", 57},
        {"FACEBOOK_PHOTO_URL", 58}, {"FACEBOOK_VIDEO_URL", 59}, {"FACEBOOK_LINK_TO_POST_URL", 60},
        {"GOOGLE_DRIVE_AUTH_URL", 61}, {"GOOGLE_DRIVE_API_URL", 62}, {"GOOGLE_DRIVE_UPLOAD_URL", 63},
        {"GOOGLE_DRIVE_SHARED_URL", 64}, {"VIMEO_API_URL", 65}, {"VIMEO_DEFAULT_AVATAR_URL", 66},
        {"VIMEO_AVATAR_URL", 67}, {"YOUTUBE_PROFILE_URL", 68}, {"YOUTUBE_API_URL", 69}, {"YOUTUBE_UPLOAD_URL", 70},
        {"YOUTUBE_CHANNEL_URL", 71}, {"YOUTUBE_VIDEO_URL", 72}, {"OSTREL_CLOUD_API_URL", 73}, {"TIKTOK_AUTH_URL", 74},
        {"TIKTOK_TOKEN_URL", 75}, {"TIKTOK_UPLOAD_URL", 76}, {"TIKTOK_PROFILE_URL", 77},
        {"UPLOAD_ITUNES_URL_other", 78}, {"DRIVER_UPDATE_GUIDE_URL_other", 79}, {"FAQ_URL_erroropengl", 81},
        {"SUPPORT_DEVICE_LIST_URL", 82}, {"SOFTWARE_OPENGL_URL", 83}, {"FORUM_URL_socialtab", 84},
        {"FORUM_URL_menu", 85}, {"INSTAGRAM_URL_socialtab", 86}, {"INSTAGRAM_URL_menu", 87},
        {"FACEBOOK_URL_socialtab", 88}, {"FACEBOOK_URL_menu", 89}, {"ODNOKLASSNIKI_URL_socialtab", 90},
        {"ODNOKLASSNIKI_URL_menu", 91}, {"GOOGLE_PLUS_URL_socialtab", 92}, {"VKONTAKTE_URL_socialtab", 93},
        {"VKONTAKTE_URL_menu", 94}, {"YOU_TUBE_URL_socialtab", 95}, {"YOU_TUBE_URL_menu", 96},
        {"INSTRUCTION_FOR_ERROR_CHANNEL_SOUND_URL_kb_sound", 97}, {"OFFER_ORDER_URL_menu", 98}, {"CHANGELOG_URL", 99},
        {"CHECK_FOR_UPDATES_URL", 100}, {"BUY_BUNDLE_URL_menu", 101}, {"BUY_CW_URL_editorWindow", 102},
        {"TERMS_OF_USE_URL", 103}, {"DATA_ON_CHILDREN_URL_feedback", 104}, {"PRIVACY_POLICY_URL_feedback", 105},
        {"COLLECT_EMAIL_URL", 106}, {"GOOGLE_PRIVACY_POLICY_URL", 107}, {"YOUTUBE_TERMS_OF_SERVICES_URL", 108},
        {"GOOGLE_SECURITY_PERMISSIONS_URL", 109}, {"HOMEPAGE_URL_youtube_description", 110},
        {"BUY_NOW_URL_sidebar", 116}, {"BUY_NOW_URL_se", 117}, {"BUY_NOW_URL_traymenu", 118},
        {"BUY_NOW_URL_lifetimeonly", 119}, {"BUY_NOW_URL_traymenulifetimeonly", 120},
        {"NAGS_DYNAMIC_CONFIG_URL", 122}, {"WHAT_IS_PLATFORM_URL", 123}, {"DOWNLOAD_PLATFORM_URL_widgetlk", 124},
        {"FAQ_URL_generic_capture_init_error", 125}, {"FAQ_URL_screen_capture_init_error", 126},
        {"FAQ_URL_scrolling_screenshot_error", 127}, {"INSTRUCTION_FOR_CHANGED_SELECT_VIDEOCARDS_URL_kb_tip", 128},
        {"TRUSTPILOT_URL_feedback_dialog", 132}, {"LEARN_MORE_ACCELERATIONS_URL_CD_settings", 133},
        {"LEARN_MORE_HOTKEYS_URL_CD_tooltip", 134},
    };
    return numbers;
}
// Where each endpoint of the tables lives: the product's defaults and the services' own hosts.
QString hostPrefix(const QString& endpoint)
{
    static const QMap<QString, QString> prefixes = {
        {QStringLiteral("links"), QStringLiteral("https://link.ostrel.com")},
        {QStringLiteral("feedback"), QStringLiteral("https://feedback.ostrel.com")},
        {QStringLiteral("configuration"), QStringLiteral("https://config.ostrel.com")},
        {QStringLiteral("content"), QStringLiteral("https://static.ostrel.com")},
        {QStringLiteral("subscriptions"), QStringLiteral("https://subscribe.ostrel.com")},
        {QStringLiteral("message service"), QStringLiteral("https://msg.ostrel.com")},
        {QStringLiteral("cloud"), QStringLiteral("https://cloud.ostrel.com")},
        {QStringLiteral("product site"), QStringLiteral("https://www.ostrel.com")},
        {QStringLiteral("none"), QString()},
        {QStringLiteral("Facebook Graph API"), QStringLiteral("https://graph.facebook.com")},
        {QStringLiteral("Facebook Graph API, video host"), QStringLiteral("https://graph-video.facebook.com")},
        {QStringLiteral("Facebook site"), QStringLiteral("https://www.facebook.com")},
        {QStringLiteral("Google Drive site"), QStringLiteral("https://drive.google.com")},
        {QStringLiteral("Google APIs"), QStringLiteral("https://www.googleapis.com")},
        {QStringLiteral("YouTube site"), QStringLiteral("https://www.youtube.com")},
        {QStringLiteral("Vimeo API"), QStringLiteral("https://api.vimeo.com")},
        {QStringLiteral("Vimeo image host"), QStringLiteral("https://i.vimeocdn.com")},
        {QStringLiteral("an image proxy in front of the Vimeo image host"),
         QStringLiteral("https://i0.wp.com/i.vimeocdn.com/")},
        {QStringLiteral("TikTok site"), QStringLiteral("https://www.tiktok.com")},
        {QStringLiteral("TikTok open API"), QStringLiteral("https://open.tiktokapis.com")},
    };
    const auto found = prefixes.find(endpoint);
    return found == prefixes.end() ? QStringLiteral("<unknown endpoint %1>").arg(endpoint) : *found;
}

// A table's cell reads like: "/path/?-TAIL_WITH_ARGS-", then "-AMP-x=-X-", ...: the quoted
// pieces, joined, are the template behind the host.
QString joinQuoted(const QString& cell)
{
    QString joined;
    QRegularExpressionMatchIterator pieces = QRegularExpression(QStringLiteral("\"([^\"]*)\"")).globalMatch(cell);
    while (pieces.hasNext())
        joined += pieces.next().captured(1);
    return joined;
}

// Key name to the template the tables give it.
std::map<std::string, std::string> expectedTemplates()
{
    std::map<std::string, std::string> expected;
    for (const StandardRow& row : standardRows()) {
        for (const char* source : row.sources) {
            const QString name = QString::fromLatin1(row.stem) +
                                 (*source ? QStringLiteral("_") + QString::fromLatin1(source) : QString());
            const QString value = hostPrefix(QStringLiteral("links")) + QString::fromLatin1(row.path) +
                                  QStringLiteral("?asrc=") + QString::fromLatin1(source) +
                                  QStringLiteral("&-TAIL_WITH_ARGS-");
            expected[name.toStdString()] = value.toStdString();
        }
    }
    for (const DepartureRow& row : departureRows()) {
        const QString endpoint = QString::fromLatin1(row.endpoint);
        const QString value = endpoint == QLatin1String("none")
                                  ? QString()
                                  : hostPrefix(endpoint) + joinQuoted(QString::fromLatin1(row.pathAndQuery));
        for (const char* key : row.keys)
            expected[key] = value.toStdString();
    }
    return expected;
}

} // namespace

class TestUrlKeys : public QObject
{
    Q_OBJECT
private slots:
    void everyKeyHasItsNumberAndName()
    {
        QCOMPARE(UrlKeyNames().size(), keyNumbers().size());
        for (const auto& [name, number] : keyNumbers()) {
            const auto found = UrlKeyNames().find(static_cast<URLKeys>(number));
            QVERIFY2(found != UrlKeyNames().end(), name);
            QCOMPARE(found->second, std::string(name));
        }
        QCOMPARE(sizeof(URLKeys), size_t(4));
    }

    void templateMatchesTheTables_data()
    {
        QTest::addColumn<QString>("key");
        QTest::addColumn<QString>("expected");
        const auto expected = expectedTemplates();
        QCOMPARE(expected.size(), keyNumbers().size());
        for (const auto& [name, value] : expected)
            QTest::newRow(name.c_str()) << QString::fromStdString(name) << QString::fromStdString(value);
    }

    void templateMatchesTheTables()
    {
        QFETCH(QString, key);
        QFETCH(QString, expected);
        const auto found = UrlTemplates().find(key.toStdString());
        QVERIFY2(found != UrlTemplates().end(), "no template under the key name");
        QCOMPARE(QString::fromStdString(found->second), expected);
    }

    void templatesOnlyForKeys()
    {
        std::set<std::string> names;
        for (const auto& [key, name] : UrlKeyNames())
            names.insert(name);
        for (const auto& [name, value] : UrlTemplates())
            QVERIFY2(names.count(name), name.c_str());
    }

    // The three that are easy to get wrong by symmetry with their neighbours.
    void edgesOfTheVocabulary()
    {
        const auto& templates = UrlTemplates();
        QVERIFY(QString::fromStdString(templates.at("THANK_FOR_INSTALL_URL")).endsWith(QLatin1String("-AMP-")));
        QVERIFY(!QString::fromStdString(templates.at("THANK_FOR_REINSTALL_URL")).endsWith(QLatin1String("-AMP-")));
        QVERIFY(templates.at("WHAT_IS_PLATFORM_URL").find("-TAIL_WITH_ARGS-&asrc=vidgetlk") != std::string::npos);
        QVERIFY(templates.at("DOWNLOAD_PLATFORM_URL_widgetlk").find("asrc=widgetlk&-TAIL_WITH_ARGS-") !=
                std::string::npos);
    }
};

OSTREL_TEST_MAIN(TestUrlKeys)
#include "tst_urlkeys.moc"
