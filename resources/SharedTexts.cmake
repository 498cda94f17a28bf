# The second set of range controls says what the first does, so it takes its translations too.
file(READ ${header} text)
if(text MATCHES "RangeScreen_Sig\"")
    string(REPLACE "translate(\"RangeScreen_Sig\"" "translate(\"RangeScreen\"" text "${text}")
    file(WRITE ${header} "${text}")
endif()
