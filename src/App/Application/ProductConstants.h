#pragma once

// Names shared by the product's programs: installer and registry values, bundle values, user
// values and fixed file names. The shell itself reads only a few of them; the others serve the
// sibling libraries and the host, which must spell them the same way.

namespace Ostrel::App::ProductConstants {

// Installer and registry values.
inline constexpr char OverrideSuffix[] = ".OVERRIDE";
inline constexpr char ProductId[] = "ProductId";
inline constexpr char Publisher[] = "Publisher";
inline constexpr char MainAppIpcId[] = "MainAppIpcId";
inline constexpr char PartnerName[] = "PartnerName";
inline constexpr char ExePath[] = "ExePath";
inline constexpr char DisplayIcon[] = "DisplayIcon";
inline constexpr char ArchitectBits[] = "ArchitectBits";
inline constexpr char Version[] = "Version";
inline constexpr char ParentProductId[] = "ParentProductId";
inline constexpr char Path[] = "Path";
inline constexpr char AutoUpdate[] = "autoUpdate";
inline constexpr char SkipThisUpdate[] = "SkipThisUpdate";
inline constexpr char SkipThisMajorUpdate[] = "SkipThisMajorUpdate";
inline constexpr char SuAutomaticallyUpdate[] = "SUAutomaticallyUpdate";
inline constexpr char VersionByInstaller[] = "VersionByInstaller";
inline constexpr char VendorProductModel[] = "VendorProductModel";
inline constexpr char DateOfFirstStart[] = "DateOfFirstStart";

// Bundle values.
inline constexpr char BundleName[] = "BUNDLE_NAME";
inline constexpr char BundleVersion[] = "BUNDLE_VERSION";
inline constexpr char PlatformType[] = "PLATFORM_TYPE";
inline constexpr char Undefined[] = "UNDEFINED";

// User values.
inline constexpr char UserId[] = "USER_ID";
inline constexpr char Huid[] = "HUID";
inline constexpr char ProductVersion[] = "PRODUCT_VERSION";
inline constexpr char Browser[] = "Browser";
inline constexpr char IsRegUser[] = "IsRegUser";
inline constexpr char IsConfirmed[] = "isConfirmed";
inline constexpr char UserEmail[] = "UserEmail";
inline constexpr char UserName[] = "UserName";
inline constexpr char IsEmailCollected[] = "isEmailCollected";
inline constexpr char IsNpsInfoCollected[] = "isNPSInfoCollected";

/// The customization file beside the executable.
inline constexpr char CustomizationFileName[] = "CaptureDeskCustom.ini";

/// The platform token, in file names, JSON keys and one request header.
inline constexpr char PlatformToken[] = "win";

} // namespace Ostrel::App::ProductConstants
