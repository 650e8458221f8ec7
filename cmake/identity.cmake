# What the program is called where others see it: the id under which desktops know it, where its page is published, and
# the files that tell of both and of the releases, made from packaging/*.in.
set(TERVALIS_ID org.tervalis.Tervalis)
set(TERVALIS_HOME_PAGE "https://tervalis.org" CACHE STRING "Where the page in docs/ is published, for software catalogues")

execute_process(COMMAND ${PROJECT_SOURCE_DIR}/tools/changelog appstream
                OUTPUT_VARIABLE TERVALIS_RELEASES COMMAND_ERROR_IS_FATAL ANY)
configure_file(packaging/tervalis.desktop.in packaging/${TERVALIS_ID}.desktop @ONLY)
configure_file(packaging/tervalis.metainfo.xml.in packaging/${TERVALIS_ID}.metainfo.xml @ONLY)
