# The one run-time dependency.
set(TARNWICK_QT_MIN 6.4)
find_package(Qt6 ${TARNWICK_QT_MIN} REQUIRED COMPONENTS Core Gui Concurrent)
if(UNIX AND NOT APPLE)
  find_package(Qt6 ${TARNWICK_QT_MIN} REQUIRED COMPONENTS DBus)
endif()
if(TARNWICK_BUILD_TESTS OR TARNWICK_BUILD_BENCH)
  find_package(Qt6 ${TARNWICK_QT_MIN} REQUIRED COMPONENTS Test)
endif()
