@echo off
rem Opens Sonaro: the one in build\data, or a packed one; else builds it with CMake, Ninja and MinGW-w64 (g++ with
rem posix threads, such as MSYS2's) and makes its data folder. What follows is handed to Sonaro: run DoWhat=BringSearch
setlocal
cd /d "%~dp0"

set program=build\data\Sonaro.exe
if exist %program% goto open
set program=build\package\Sonaro\Sonaro.exe
if exist %program% goto open

for %%T in (cmake ninja g++ windres) do call :need %%T
if defined missing (
  echo Sonaro is not built, and these programs are not on the PATH to build it:%missing%
  echo Install MSYS2 and its packages mingw-w64-x86_64-toolchain, -cmake, -ninja, -nlohmann-json and -zlib.
  exit /b 1
)
echo Building Sonaro. This takes some minutes.
cmake -G Ninja -S . -B build\windows -DCMAKE_BUILD_TYPE=Release -DBUILD_TESTING=OFF || exit /b 1
cmake --build build\windows --target Sonaro lweb sonaro-directory || exit /b 1

echo Making the data folder.
mkdir build\data\Depot 2>nul
copy /y data\depot\*.* build\data\Depot >nul || exit /b 1
build\windows\bin\sonaro-directory.exe make data\stations.jsonl.gz --out build\data || exit /b 1
copy /y build\windows\bin\Sonaro.exe build\data >nul || exit /b 1
copy /y build\windows\bin\lweb.exe build\data >nul || exit /b 1
set program=build\data\Sonaro.exe

:open
start "" %program% %*
exit /b 0

:need
where %1 >nul 2>nul || set missing=%missing% %1
exit /b 0
