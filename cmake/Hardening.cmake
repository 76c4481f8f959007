# The distribution's hardening flags, as Debian builds its own packages: the
# stack protector, fortified libc calls, full RELRO with immediate binding
# (bind-now) and position-independent executables. dpkg-buildflags says which
# flags these are for this compiler and architecture. The filter among the
# binaries parses text any print user controls, so every binary gets them.
option(ORVO_HARDENING "Build with the hardening flags dpkg-buildflags gives (hardening=+all)" OFF)
if(ORVO_HARDENING)
    find_program(DPKG_BUILDFLAGS dpkg-buildflags REQUIRED)
    set(ENV{DEB_BUILD_MAINT_OPTIONS} "hardening=+all")
    foreach(kind CPPFLAGS CFLAGS CXXFLAGS LDFLAGS)
        execute_process(COMMAND ${DPKG_BUILDFLAGS} --get ${kind}
                        OUTPUT_VARIABLE flags OUTPUT_STRIP_TRAILING_WHITESPACE
                        COMMAND_ERROR_IS_FATAL ANY)
        separate_arguments(ORVO_${kind} UNIX_COMMAND "${flags}")
    endforeach()
    add_compile_options(${ORVO_CPPFLAGS} "$<$<COMPILE_LANGUAGE:C>:${ORVO_CFLAGS}>"
                        "$<$<COMPILE_LANGUAGE:CXX>:${ORVO_CXXFLAGS}>")
    add_link_options(${ORVO_LDFLAGS})
    set(CMAKE_POSITION_INDEPENDENT_CODE ON)
    include(CheckPIESupported)
    check_pie_supported()
endif()
