# Installation and `cpack`: a Debian package on Linux, a disk image with a self-contained bundle on macOS.
set(CPACK_PACKAGE_NAME ferrow)
set(CPACK_PACKAGE_VENDOR "The Ferrow authors")
set(CPACK_PACKAGE_CONTACT "Ferrow maintainers <maintainers@ferrow.app>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "Power monitor for the tray")
set(CPACK_STRIP_FILES ON)

if(APPLE)
    # The bundle carries its own Qt: macdeployqt copies the frameworks and plugins in, and the
    # signature, made before they were there, is made again over all of it.
    install(TARGETS ferrow BUNDLE DESTINATION .)
    install(TARGETS ferrow-cli RUNTIME DESTINATION Ferrow.app/Contents/MacOS)
    find_program(MACDEPLOYQT macdeployqt HINTS "${QT6_INSTALL_PREFIX}/${QT6_INSTALL_BINS}")
    # The copied frameworks are built for the system of the machine that built them: the bundle
    # declares the highest minimum among its files, and packaging fails on a load path that leaves
    # the bundle for anything but the system (tools/check_bundle.py).
    find_package(Python3 REQUIRED COMPONENTS Interpreter)
    if(MACDEPLOYQT)
        install(CODE "
            set(app \"\$ENV{DESTDIR}\${CMAKE_INSTALL_PREFIX}/Ferrow.app\")
            execute_process(COMMAND \"${MACDEPLOYQT}\" \"\${app}\" \"-executable=\${app}/Contents/MacOS/ferrow-cli\"
                            COMMAND_ERROR_IS_FATAL ANY)
            execute_process(COMMAND \"${Python3_EXECUTABLE}\" \"${PROJECT_SOURCE_DIR}/tools/check_bundle.py\" --declare \"\${app}\"
                            COMMAND_ERROR_IS_FATAL ANY)
            execute_process(COMMAND codesign --force --deep --sign - --timestamp=none \"\${app}\"
                            COMMAND_ERROR_IS_FATAL ANY)")
    else()
        message(STATUS "macdeployqt not found: `cpack` would make a disk image that needs Qt installed")
    endif()
    set(CPACK_GENERATOR DragNDrop)
    set(CPACK_DMG_VOLUME_NAME Ferrow)
    set(CPACK_PACKAGE_FILE_NAME "Ferrow-${PROJECT_VERSION}")
else()
    include(GNUInstallDirs)
    # The same modes whatever the builder's umask, as a package's directories must have.
    set(CMAKE_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
        OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
    set(app_id app.ferrow.Ferrow)
    set(linux_resources ${PROJECT_SOURCE_DIR}/resources/linux)
    set(FERROW_HOMEPAGE_URL "https://ferrow.app" CACHE STRING "The project's home page, for the AppStream metadata")
    set(FERROW_SCREENSHOT_URL "${FERROW_HOMEPAGE_URL}/images" CACHE STRING
        "Where the README's docs/images/ are published, for the AppStream metadata's screenshots")

    install(TARGETS ferrow ferrow-cli RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR})
    install(FILES ${linux_resources}/${app_id}.desktop DESTINATION ${CMAKE_INSTALL_DATADIR}/applications)
    configure_file(${linux_resources}/${app_id}.metainfo.xml.in ${CMAKE_CURRENT_BINARY_DIR}/${app_id}.metainfo.xml @ONLY)
    install(FILES ${CMAKE_CURRENT_BINARY_DIR}/${app_id}.metainfo.xml DESTINATION ${CMAKE_INSTALL_DATADIR}/metainfo)

    # The theme's bitmap sizes, scaled down from the 1024-pixel artwork with Qt at build time.
    set(icon_sizes 16 22 24 32 48 64 128 256 512)
    set(icon_dir ${CMAKE_CURRENT_BINARY_DIR}/icons/hicolor)
    qt_add_executable(scale_icon ${PROJECT_SOURCE_DIR}/tools/scale_icon/main.cpp)
    set_target_properties(scale_icon PROPERTIES MACOSX_BUNDLE OFF WIN32_EXECUTABLE OFF)
    target_link_libraries(scale_icon PRIVATE Qt6::Gui ferrow_build_settings)
    set(icon_files)
    foreach(size IN LISTS icon_sizes)
        list(APPEND icon_files ${icon_dir}/${size}x${size}/apps/${app_id}.png)
    endforeach()
    add_custom_command(OUTPUT ${icon_files}
        COMMAND scale_icon ${PROJECT_SOURCE_DIR}/resources/icons/ferrow-1024.png ${icon_dir} ${app_id} ${icon_sizes}
        DEPENDS scale_icon ${PROJECT_SOURCE_DIR}/resources/icons/ferrow-1024.png
        COMMENT "Scaling the icon to the hicolor sizes" VERBATIM)

    # Debian wants its changelog compressed reproducibly (no name or time stamp in the gzip header).
    find_program(GZIP gzip REQUIRED)
    configure_file(${linux_resources}/changelog.in ${CMAKE_CURRENT_BINARY_DIR}/changelog @ONLY)
    add_custom_command(OUTPUT ${CMAKE_CURRENT_BINARY_DIR}/changelog.gz
        COMMAND ${GZIP} -9nf -k ${CMAKE_CURRENT_BINARY_DIR}/changelog
        DEPENDS ${CMAKE_CURRENT_BINARY_DIR}/changelog VERBATIM)
    add_custom_target(ferrow_package_files ALL DEPENDS ${icon_files} ${CMAKE_CURRENT_BINARY_DIR}/changelog.gz)

    install(DIRECTORY ${icon_dir} DESTINATION ${CMAKE_INSTALL_DATADIR}/icons)
    install(FILES ${PROJECT_SOURCE_DIR}/resources/icons/ferrow.svg
            DESTINATION ${CMAKE_INSTALL_DATADIR}/icons/hicolor/scalable/apps RENAME ${app_id}.svg)
    install(DIRECTORY ${PROJECT_BINARY_DIR}/src/app/icons/hicolor/scalable/status
            DESTINATION ${CMAKE_INSTALL_DATADIR}/icons/hicolor/scalable)
    install(FILES ${linux_resources}/copyright ${CMAKE_CURRENT_BINARY_DIR}/changelog.gz
                  ${PROJECT_SOURCE_DIR}/resources/fonts/OFL.txt
            DESTINATION ${CMAKE_INSTALL_DATADIR}/doc/ferrow)

    set(CPACK_GENERATOR DEB)
    set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
    set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
    set(CPACK_DEBIAN_PACKAGE_SECTION utils)
    set(CPACK_DEBIAN_PACKAGE_MAINTAINER "${CPACK_PACKAGE_CONTACT}")
    set(CPACK_DEBIAN_PACKAGE_HOMEPAGE "${FERROW_HOMEPAGE_URL}")
    set(CPACK_DEBIAN_PACKAGE_DESCRIPTION "Ferrow sits in the system tray and reads the machine once a second: the
adapter input, the system's total draw, the battery's flow, the processor,
graphics and memory power, and the battery's charge, health and temperature.
ferrow-cli prints the same readings in a terminal.")
    # The libraries come from dpkg-shlibdeps; the platform plugins Qt loads at run time do not.
    set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
    set(CPACK_DEBIAN_PACKAGE_DEPENDS "qt6-qpa-plugins, libqt6sql6-sqlite")
    set(CPACK_DEBIAN_PACKAGE_RECOMMENDS "qt6-wayland")
    set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
endif()

include(CPack)
