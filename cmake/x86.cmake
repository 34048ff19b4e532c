# 32-bit x86 with the 64-bit machine's own g++ (g++-multilib) and Debian's i386 packages. The programs run on this
# machine, so this is no cross compilation in CMake's sense and no CMAKE_SYSTEM_NAME is set.
set(CMAKE_CXX_COMPILER g++)
set(CMAKE_CXX_FLAGS_INIT -m32)
set(CMAKE_LIBRARY_ARCHITECTURE i386-linux-gnu)
