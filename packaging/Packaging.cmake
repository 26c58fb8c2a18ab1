# The Debian package: `cpack -G DEB` in a build tree makes
# brindlepot_<version>_<arch>.deb from what `cmake --install` lays out.
#
# The dependencies are listed by hand for Debian 12. The first list names the
# package of every shared library the Release program is linked against
# (readelf -d: NEEDED; the minimum versions as dpkg-shlibdeps gives them, Qt
# raised to the 6.4 we build with); the install tests check it against the
# built program, so a newly linked library cannot be forgotten. Hunspell is
# found by the build but not linked, so it is not listed. The X11 platform
# plugin and the JPEG and ICO image plugins ship in libqt6gui6 itself, so
# qt6-qpa-plugins (VNC and touch only on Debian 12) is not needed. The second
# list is what the program needs at run time without linking it.
set(BRINDLEPOT_DEB_LINKED_DEPENDS
  "libc6 (>= 2.34)"
  "libgcc-s1 (>= 3.0)"
  "libstdc++6 (>= 11)"
  "libqt6core6 (>= 6.4.0)"
  "libqt6gui6 (>= 6.4.0)"
  "libqt6widgets6 (>= 6.4.0)"
  "libqt6printsupport6 (>= 6.4.0)"
  "libqt6network6 (>= 6.4.0)"
  "libqt6charts6 (>= 6.4.0)"
)
# The main screen is set in the Liberation faces, and the metric-compatible
# Liberation Serif stands in for the Times New Roman of the print fonts.
set(BRINDLEPOT_DEB_RUNTIME_DEPENDS
  "fonts-liberation"
)
list(JOIN BRINDLEPOT_DEB_LINKED_DEPENDS ", " _linked)
list(JOIN BRINDLEPOT_DEB_RUNTIME_DEPENDS ", " _runtime)
set(BRINDLEPOT_DEB_DEPENDS "${_linked}, ${_runtime}")

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME brindlepot)
set(CPACK_PACKAGE_VERSION ${PROJECT_VERSION})
set(CPACK_PACKAGE_VENDOR "The Brindlepot developers")
set(CPACK_PACKAGE_CONTACT "Brindlepot developers <brindlepot@users.noreply.github.com>")
set(CPACK_PACKAGE_HOMEPAGE_URL "https://github.com/brindlepot/brindlepot")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "kitchen program: recipes, shopping lists, menus, weight and food storage")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)

set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION utils)
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)
set(CPACK_DEBIAN_PACKAGE_DEPENDS "${BRINDLEPOT_DEB_DEPENDS}")
# Wayland sessions run it natively with the Wayland plugin, otherwise through XWayland.
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS "qt6-wayland")
# CPack puts the summary above this as the package's first description line.
set(CPACK_DEBIAN_PACKAGE_DESCRIPTION
"Brindlepot keeps the family's recipes in eight cookbooks, with search,
printing and an amount calculator; makes shopping lists from recipes and
common groceries; plans breakfast, lunch and dinner on a calendar;
tracks each member's weight with a graph, a plan and photographs; and
brings emergency food storage tables with their totals and charts, a
food guide and a table of measurement conversions.
.
All data lives as plain files in one folder (~/.local/share/Brindlepot),
so a whole collection can be carried from one computer to another.")

include(CPack)
