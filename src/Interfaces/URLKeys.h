#pragma once

// The tables are defined in the core library (Core/URLKeys.cpp), beside the links manager that
// reads them, so that they are built once instead of in every includer.
#include "Core/ostrel_core_export.h"

#include <cstdint>
#include <map>
#include <string>
#include <utility>
#include <vector>

namespace Ostrel::App {

/// Every address the product opens or calls, by name. The numbers are exchanged with the core
/// library and the host, so they never change; a new key takes a new number.
enum URLKeys : std::int32_t
{
    FAQ_URL_menu = 1,
    FAQ_URL_menuabout = 2,
    FAQ_URL_erroroffline = 4,
    FAQ_URL = 5,
    BUY_NOW_URL_menu = 6,
    BUY_NOW_URL_firststart = 8,
    BUY_NOW_URL_nag_authorization_window_buynow = 14,
    BUY_NOW_URL = 17,
    HOMEPAGE_URL_menu = 19,
    HOMEPAGE_URL_menuabout = 20,
    HOMEPAGE_URL_socialtab = 21,
    DOWNLOAD_URL_checkupdatest = 22,
    HELP_URL_menu = 24,
    LIVECHAT_URL_menu = 25,
    CONTACT_SUPPORT_URL_menu = 31,
    GET_MORE_SOFTWARE_URL_menu = 33,
    CUSTOM_ABOUT_URL = 34,
    CUSTOM_ABOUT_CAPTION_URL = 35,
    CUSTOM_WEB_NAG_URL = 36,
    THANK_FOR_INSTALL_URL = 37,
    THANK_FOR_REINSTALL_URL = 38,
    FEEDBACK_URL_POST = 40,
    FEEDBACK_URL_GET = 41,
    NPS_URL_POST = 42,
    PRIVACY_POLICY_URL = 43,
    WEB_CONFIG_URL = 44,
    SPARKLE_APPCAST_URL = 45,
    NAGS_REQUEST_URL = 53,
    FACEBOOK_GRAPH_URL = 54,
    FACEBOOK_GRAPH_VIDEO_URL = 55,
    FACEBOOK_AUTH_URL = 56,
    FACEBOOK_PROFILE_URL = 57,
    FACEBOOK_PHOTO_URL = 58,
    FACEBOOK_VIDEO_URL = 59,
    FACEBOOK_LINK_TO_POST_URL = 60,
    GOOGLE_DRIVE_AUTH_URL = 61,
    GOOGLE_DRIVE_API_URL = 62,
    GOOGLE_DRIVE_UPLOAD_URL = 63,
    GOOGLE_DRIVE_SHARED_URL = 64,
    VIMEO_API_URL = 65,
    VIMEO_DEFAULT_AVATAR_URL = 66,
    VIMEO_AVATAR_URL = 67,
    YOUTUBE_PROFILE_URL = 68,
    YOUTUBE_API_URL = 69,
    YOUTUBE_UPLOAD_URL = 70,
    YOUTUBE_CHANNEL_URL = 71,
    YOUTUBE_VIDEO_URL = 72,
    OSTREL_CLOUD_API_URL = 73,
    TIKTOK_AUTH_URL = 74,
    TIKTOK_TOKEN_URL = 75,
    TIKTOK_UPLOAD_URL = 76,
    TIKTOK_PROFILE_URL = 77,
    UPLOAD_ITUNES_URL_other = 78,
    DRIVER_UPDATE_GUIDE_URL_other = 79,
    FAQ_URL_erroropengl = 81,
    SUPPORT_DEVICE_LIST_URL = 82,
    SOFTWARE_OPENGL_URL = 83,
    FORUM_URL_socialtab = 84,
    FORUM_URL_menu = 85,
    INSTAGRAM_URL_socialtab = 86,
    INSTAGRAM_URL_menu = 87,
    FACEBOOK_URL_socialtab = 88,
    FACEBOOK_URL_menu = 89,
    ODNOKLASSNIKI_URL_socialtab = 90,
    ODNOKLASSNIKI_URL_menu = 91,
    GOOGLE_PLUS_URL_socialtab = 92,
    VKONTAKTE_URL_socialtab = 93,
    VKONTAKTE_URL_menu = 94,
    YOU_TUBE_URL_socialtab = 95,
    YOU_TUBE_URL_menu = 96,
    INSTRUCTION_FOR_ERROR_CHANNEL_SOUND_URL_kb_sound = 97,
    OFFER_ORDER_URL_menu = 98,
    CHANGELOG_URL = 99,
    CHECK_FOR_UPDATES_URL = 100,
    BUY_BUNDLE_URL_menu = 101,
    BUY_CW_URL_editorWindow = 102,
    TERMS_OF_USE_URL = 103,
    DATA_ON_CHILDREN_URL_feedback = 104,
    PRIVACY_POLICY_URL_feedback = 105,
    COLLECT_EMAIL_URL = 106,
    GOOGLE_PRIVACY_POLICY_URL = 107,
    YOUTUBE_TERMS_OF_SERVICES_URL = 108,
    GOOGLE_SECURITY_PERMISSIONS_URL = 109,
    HOMEPAGE_URL_youtube_description = 110,
    BUY_NOW_URL_sidebar = 116,
    BUY_NOW_URL_se = 117,
    BUY_NOW_URL_traymenu = 118,
    BUY_NOW_URL_lifetimeonly = 119,
    BUY_NOW_URL_traymenulifetimeonly = 120,
    NAGS_DYNAMIC_CONFIG_URL = 122,
    WHAT_IS_PLATFORM_URL = 123,
    DOWNLOAD_PLATFORM_URL_widgetlk = 124,
    FAQ_URL_generic_capture_init_error = 125,
    FAQ_URL_screen_capture_init_error = 126,
    FAQ_URL_scrolling_screenshot_error = 127,
    INSTRUCTION_FOR_CHANGED_SELECT_VIDEOCARDS_URL_kb_tip = 128,
    TRUSTPILOT_URL_feedback_dialog = 132,
    LEARN_MORE_ACCELERATIONS_URL_CD_settings = 133,
    LEARN_MORE_HOTKEYS_URL_CD_tooltip = 134,
};

/// Each key's enumerator spelled as a string (the key name), letter for letter.
OSTREL_CORE_EXPORT extern const std::map<URLKeys, std::string> UrlKeyNames;

/// Key name to URL template. Macros of the form "-NAME-" and the placeholders "%1", "%2" are
/// filled by the links manager; "-TAIL_WITH_ARGS-" is the query common to every link and "-AMP-"
/// a "&" behind it. The product's own endpoints appear with the default hosts of
/// UrlEndpointHosts(), which a customization may replace; outside services keep their own hosts.
OSTREL_CORE_EXPORT extern const std::map<std::string, std::string> UrlTemplates;

/// The product's endpoints: the customization key that names each one's host ("Hosts/<name>")
/// and the default host that the templates carry.
OSTREL_CORE_EXPORT const std::vector<std::pair<std::string, std::string>>& UrlEndpointHosts();

} // namespace Ostrel::App
