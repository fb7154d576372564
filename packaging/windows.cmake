# For Windows: one directory that runs wherever it stands, with all that the windows need; tools/package_windows makes an
# archive and an installer of it.
target_link_options(fill_options PRIVATE -static)  # which runs during the build
install(TARGETS coltre coltre-calcolo DESTINATION .)
install(FILES $<TARGET_RUNTIME_DLLS:coltre> DESTINATION .)
foreach(library IN ITEMS libstdc++-6.dll libgcc_s_seh-1.dll libwinpthread-1.dll)
    execute_process(COMMAND ${CMAKE_CXX_COMPILER} -print-file-name=${library} OUTPUT_VARIABLE path
                    OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)
    install(FILES ${path} DESTINATION .)
endforeach()
# Where the program looks for what it loads while it runs.
file(WRITE ${built}/qt.conf "[Paths]\nPrefix = .\n")
install(FILES ${built}/qt.conf DESTINATION .)
install(FILES ${COLTRE_QT_FOR_WINDOWS}/plugins/platforms/qwindows.dll DESTINATION plugins/platforms)
install(FILES ${COLTRE_QT_FOR_WINDOWS}/plugins/styles/qwindowsvistastyle.dll DESTINATION plugins/styles)
install(FILES /usr/share/qt6/translations/qtbase_it.qm DESTINATION translations)

configure_file(coltre.nsi.in coltre.nsi @ONLY)

# Texts for that system's own editor: CR LF at the end of a line, and a mark that says UTF-8.
string(ASCII 239 187 191 utf8_mark)
function(install_text source name directory)
    file(READ ${source} text)
    file(CONFIGURE OUTPUT ${built}/windows_texts/${directory}/${name} CONTENT "${utf8_mark}${text}" @ONLY
         NEWLINE_STYLE CRLF)
    install(FILES ${built}/windows_texts/${directory}/${name} DESTINATION ${directory})
endfunction()
execute_process(COMMAND dpkg-query --show --showformat=\${source:Version} qt6-base-dev OUTPUT_VARIABLE qt_version
                COMMAND_ERROR_IS_FATAL ANY)
install_text(LEGGIMI-Windows.txt.in LEGGIMI.txt .)
install_text(${built}/NOTICE NOTICE.txt .)
install_text(${change_log} CHANGELOG.txt .)
# The terms of what stands beside the programs, with those of what it contains in turn.
foreach(license IN ITEMS LGPL-3 GPL-3)
    install_text(/usr/share/common-licenses/${license} ${license}.txt licenze)
endforeach()
install_text(/usr/share/doc/qt6-base-dev/copyright Qt.txt licenze)
install_text(/usr/share/doc/qt6-translations-l10n/copyright Qt-traduzioni.txt licenze)
install_text(/usr/share/doc/gcc-mingw-w64-base/copyright GCC.txt licenze)
install_text(/usr/share/doc/mingw-w64-x86-64-dev/copyright mingw-w64.txt licenze)

install(FILES ${built}/manuale.html ${built}/verifica.html ${built}/casi-di-prova.html ${worked_cases} DESTINATION .)
install(DIRECTORY ${PROJECT_SOURCE_DIR}/docs/manuale/immagini DESTINATION .)
