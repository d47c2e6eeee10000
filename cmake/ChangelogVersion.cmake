# The project version is the first "## [X.Y.Z]" heading of CHANGELOG.md, so that the
# changelog, the library, navmsg, the man page and the packages cannot disagree.
# Included before project(); sets ZELTNAVMSG_CHANGELOG_VERSION and
# ZELTNAVMSG_CHANGELOG_DATE (a date, or "Unreleased").

function(zeltnavmsg_read_changelog_version changelog)
    file(STRINGS "${changelog}" headings REGEX "^## \\[")
    set(top "")
    if(headings)
        list(GET headings 0 top)
    endif()
    if(NOT top MATCHES "^## \\[([0-9]+\\.[0-9]+\\.[0-9]+)\\] - ([0-9]+-[0-9]+-[0-9]+|Unreleased)$")
        message(FATAL_ERROR "${changelog}: the first version heading is \"${top}\"; "
            "it must name the version and its date, or Unreleased: "
            "\"## [1.2.3] - 2026-01-31\" or \"## [1.2.3] - Unreleased\"")
    endif()
    set(ZELTNAVMSG_CHANGELOG_VERSION "${CMAKE_MATCH_1}" PARENT_SCOPE)
    set(ZELTNAVMSG_CHANGELOG_DATE "${CMAKE_MATCH_2}" PARENT_SCOPE)
    # A new heading must reconfigure.
    set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS "${changelog}")
endfunction()
