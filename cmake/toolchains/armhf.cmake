# 32-bit Arm with hardware floating point, on a Debian machine that has Debian's cross compiler and the libraries of
# that architecture beside its own. tools/target makes such a machine in a folder.
set(CMAKE_SYSTEM_NAME Linux)
set(CMAKE_SYSTEM_PROCESSOR armv7l)
set(CMAKE_LIBRARY_ARCHITECTURE arm-linux-gnueabihf)
set(CMAKE_C_COMPILER arm-linux-gnueabihf-gcc)
set(CMAKE_CXX_COMPILER arm-linux-gnueabihf-g++)
# pkg-config must not answer with the libraries of the machine that builds. Some packages of one architecture only have
# their file in the second folder.
set(ENV{PKG_CONFIG_LIBDIR} "/usr/lib/${CMAKE_LIBRARY_ARCHITECTURE}/pkgconfig:/usr/lib/pkgconfig:/usr/share/pkgconfig")
