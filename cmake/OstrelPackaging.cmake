# Debian packages made by CPack from the install rules, one per install component:
#
#   libostrel<major>  runtime      the shared libraries with their SONAME links
#   libostrel-dev     development  headers, the unversioned links, the CMake package, and the
#                                  shell's translations and sample themes (share/ostrel/resources)
#   ostrel-host       host         the sample host in lib/ostrel-host with its resource tree, and a
#                                  link in bin/
#
# Laid out for the prefix /usr with Debian's multiarch library folder: scripts/package.sh
# configures CMAKE_INSTALL_PREFIX and CMAKE_INSTALL_LIBDIR before it calls CPack.

set(runtime_package libostrel${PROJECT_VERSION_MAJOR})
set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME ostrel)
set(CPACK_PACKAGE_VENDOR "Ostrel")
set(CPACK_PACKAGE_CONTACT "Ostrel application shell team <shell@ostrel.com>")
set(CPACK_PACKAGE_VERSION ${PROJECT_VERSION})
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_COMPONENTS_ALL runtime development host)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_RELEASE 1)
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)
set(exact_version "${PROJECT_VERSION}-${CPACK_DEBIAN_PACKAGE_RELEASE}")

# dpkg-shlibdeps reads the Qt, glog and C++ runtime dependencies off the binaries; our own libraries
# link each other, so it is shown where they are. The QML modules that the nags import are loaded
# at run time, out of its sight.
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS ${CMAKE_LIBRARY_OUTPUT_DIRECTORY})
# The runtime package's shlibs file, so that a product packaged with Debian's tools gets its
# dependency on our libraries from dpkg-shlibdeps like on any other library; any later 1.x is
# binary compatible with the version a product was built against.
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS ON)
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS_POLICY ">=")

# A description's first line is the package's summary.
set(CPACK_DEBIAN_RUNTIME_DESCRIPTION "Ostrel application shell (shared libraries)
The shell owns QApplication and everything a product's windows share: the
registry of services, the lifetime of the process, themes and locales, links,
nag screens, touch gestures and the built-in test options.")
set(CPACK_DEBIAN_RUNTIME_PACKAGE_NAME ${runtime_package})
set(CPACK_DEBIAN_RUNTIME_PACKAGE_SECTION libs)
set(CPACK_DEBIAN_RUNTIME_PACKAGE_DEPENDS "qml-module-qtquick2")

set(CPACK_DEBIAN_DEVELOPMENT_DESCRIPTION "Ostrel application shell (development files)
Headers and the CMake package (find_package(Ostrel), targets Ostrel::App and
its siblings), with the shell's translations and sample themes for a
product's own resource tree.")
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_NAME libostrel-dev)
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_SECTION libdevel)
# What the CMake package's find_dependency calls and the headers need.
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_DEPENDS
    "${runtime_package} (= ${exact_version}), qtbase5-dev, qtdeclarative5-dev, libboost-dev, libgoogle-glog-dev, cmake")

set(CPACK_DEBIAN_HOST_DESCRIPTION "Ostrel application shell (sample host)
ostrel-host shows a product team how to wire the shell, with its themes and
translations; its main job walks every sample nag in every locale.")
set(CPACK_DEBIAN_HOST_PACKAGE_NAME ostrel-host)
set(CPACK_DEBIAN_HOST_PACKAGE_SECTION x11)
set(CPACK_DEBIAN_HOST_PACKAGE_DEPENDS "${runtime_package} (= ${exact_version})")

include(CPack)
