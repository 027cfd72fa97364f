# The files that a Debian package has in addition to an installation: the licence and the list of releases.
# Run by CPack after it has installed the files of the package.
set(doc ${CPACK_TEMPORARY_DIRECTORY}/usr/share/doc/verdane)
file(READ ${CPACK_VERDANE_SOURCES}/LICENSE licence)
string(REGEX MATCH "Copyright[^\n]*" owner "${licence}")
string(REGEX REPLACE "^.*${owner}\n\n" "" terms "${licence}")
string(STRIP "${terms}" terms)
string(REPLACE "\n\n" "\n.\n" terms "${terms}")
string(REPLACE "\n" "\n " terms "${terms}")
string(REGEX REPLACE "^Copyright( \\(c\\))? " "" owner "${owner}")
file(CONFIGURE OUTPUT ${doc}/copyright CONTENT [[
Format: https://www.debian.org/doc/packaging-manuals/copyright-format/1.0/
Upstream-Name: Verdane

Files: *
Copyright: @owner@
License: Expat

License: Expat
 @terms@
]] @ONLY)

execute_process(COMMAND date --utc --rfc-email --date=${CPACK_VERDANE_RELEASE_DATE}
  OUTPUT_VARIABLE date OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)
file(CONFIGURE OUTPUT ${doc}/changelog CONTENT [[
verdane (@CPACK_PACKAGE_VERSION@) unstable; urgency=medium

  * Release @CPACK_PACKAGE_VERSION@. CHANGELOG.md has the changes.

 -- @CPACK_DEBIAN_PACKAGE_MAINTAINER@  @date@
]] @ONLY)
file(COPY ${CPACK_VERDANE_SOURCES}/CHANGELOG.md DESTINATION ${doc})
execute_process(COMMAND gzip --force --best --no-name ${doc}/changelog ${doc}/CHANGELOG.md
  COMMAND_ERROR_IS_FATAL ANY)
file(CHMOD ${doc}/copyright ${doc}/changelog.gz ${doc}/CHANGELOG.md.gz
  FILE_PERMISSIONS OWNER_READ OWNER_WRITE GROUP_READ WORLD_READ)
