# What of the component `desktop` is made while it is installed.
set(root "$ENV{DESTDIR}")
set(share "${root}/usr/share")

# A start after an upgrade knows by it that there is something new; a build of its own counts.
file(SHA256 "${PROGRAM}" sum)
string(SUBSTRING "${sum}" 0 16 sum)
file(WRITE "${root}/opt/vantrel/version" "${VERSION} ${sum}\n")

string(TIMESTAMP DATE "%Y-%m-%d" UTC) # or that of SOURCE_DATE_EPOCH
configure_file("${CMAKE_CURRENT_LIST_DIR}/org.vantrel.Vantrel.metainfo.xml.in"
    "${share}/metainfo/org.vantrel.Vantrel.metainfo.xml" @ONLY)

foreach(size IN ITEMS 16 24 32 48 64 128 256)
    set(folder "${share}/icons/hicolor/${size}x${size}/apps")
    file(MAKE_DIRECTORY "${folder}")
    execute_process(COMMAND rsvg-convert --width ${size} --height ${size}
        --output "${folder}/vantrel.png" "${DRAWING}" COMMAND_ERROR_IS_FATAL ANY)
endforeach()

file(MAKE_DIRECTORY "${root}/usr/bin")
file(CREATE_LINK /opt/vantrel/vantrel "${root}/usr/bin/vantrel" SYMBOLIC)
file(CREATE_LINK /opt/vantrel/vantrel "${root}/usr/bin/vantrelctl" SYMBOLIC)
