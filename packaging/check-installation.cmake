# SPDX-License-Identifier: MIT
# cmake -DBUILD=folder -DVERSION=x.y.z -DID=org.example.Program -P check-installation.cmake: installs into a folder of
# its own and checks that everything is where a desktop looks for it.
set(prefix "${BUILD}/packaging/installation")
file(REMOVE_RECURSE "${prefix}")
execute_process(COMMAND ${CMAKE_COMMAND} --install "${BUILD}" --prefix "${prefix}" --component Unspecified
  OUTPUT_QUIET COMMAND_ERROR_IS_FATAL ANY)

foreach(file IN ITEMS
    bin/abissora
    share/applications/${ID}.desktop
    share/doc/abissora/copyright
    share/icons/hicolor/scalable/apps/${ID}.svg
    share/icons/hicolor/symbolic/apps/${ID}-symbolic.svg
    share/man/it/man1/abissora.1
    share/man/man1/abissora.1
    share/metainfo/${ID}.metainfo.xml)
  if(NOT EXISTS "${prefix}/${file}")
    message(SEND_ERROR "Not installed: ${file}. cmake/Packaging.cmake installs it.")
  endif()
endforeach()

file(GLOB licences "${prefix}/share/doc/abissora/licenses/*")
if(NOT licences)
  message(SEND_ERROR "No licence of the icon sets is installed; they come from packaging/licenses.")
endif()

execute_process(COMMAND "${prefix}/bin/abissora" --version
  OUTPUT_VARIABLE answer COMMAND_ERROR_IS_FATAL ANY)
string(FIND "${answer}" "${VERSION}" found)
if(found EQUAL -1)
  message(SEND_ERROR "abissora --version answers \"${answer}\", without ${VERSION}.")
endif()

file(STRINGS "${prefix}/share/metainfo/${ID}.metainfo.xml" releases REGEX "<release ")
list(GET releases 0 newest)
string(FIND "${newest}" "\"${VERSION}\"" found)
if(found EQUAL -1)
  message(SEND_ERROR "The newest release in packaging/abissora.metainfo.xml.in is not ${VERSION}: add an entry for it.")
endif()
