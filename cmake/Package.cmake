# The Debian package that "cpack -G DEB" makes of what is installed; tools/package-linux.sh runs it.
set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME mortane)
set(CPACK_PACKAGE_VENDOR "Mortane maintainers")
# The maintainers have no public address; this domain is reserved for such cases.
set(CPACK_PACKAGE_CONTACT "Mortane maintainers <maintainers@mortane.invalid>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "set up motorised research microscopes")
set(CPACK_DEBIAN_PACKAGE_DESCRIPTION
  "Mortane connects to a motorised microscope of the K70 class, reads what its
controllers hold, shows it on pages, writes changes back, and keeps the whole
configuration in a settings file.
.
The package has the program with all pages, a wizard that goes through the
set-up step by step, and mortanectl for terminals and scripts. A simulated
microscope serves those who want to try them without hardware.")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_PACKAGE_DIRECTORY "${PROJECT_SOURCE_DIR}/dist")
set(CPACK_STRIP_FILES ON)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
  OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION science)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
# Without it there are no windows on a desktop that has no X server.
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS qt6-wayland)
include(CPack)

# What the policy of the distribution wants beside that: a change log in its own form.
set(CHANGES "${made}/changelog.gz")
add_custom_command(OUTPUT "${CHANGES}" VERBATIM
  COMMAND "${packaging}/linux/debian-changelog.sh" "${PROJECT_SOURCE_DIR}/CHANGELOG.md" "${CHANGES}"
    "${CPACK_PACKAGE_CONTACT}"
  DEPENDS "${packaging}/linux/debian-changelog.sh" "${PROJECT_SOURCE_DIR}/CHANGELOG.md")
add_custom_target(package_files ALL DEPENDS "${CHANGES}")
install(FILES "${CHANGES}" DESTINATION "${doc}")
