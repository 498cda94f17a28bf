# Fails when the binary needs the widgets library, and when it seems to need no libraries at all.
execute_process(COMMAND ldd ${BINARY} OUTPUT_VARIABLE libraries RESULT_VARIABLE status)
if(NOT status EQUAL 0 OR NOT libraries MATCHES "libQt6Core")
    message(FATAL_ERROR "cannot tell what ${BINARY} links: ${libraries}")
endif()
if(libraries MATCHES "libQt6Widgets")
    message(FATAL_ERROR "${BINARY} links widgets")
endif()
