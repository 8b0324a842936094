from conan import ConanFile
from conan.errors import ConanInvalidConfiguration
from conan.tools.build import check_min_cppstd
from conan.tools.cmake import CMake, CMakeToolchain, cmake_layout
from conan.tools.files import copy, rm, rmdir

required_conan_version = ">=2.0"


class Orv3Cal(ConanFile):
    name = "orv3cal"
    version = "1.0.0"
    license = "MIT"
    description = "Sections, catalogues and connection checks of structural steel"
    package_type = "library"
    settings = "os", "compiler", "build_type", "arch"
    options = {"shared": [True, False]}
    default_options = {"shared": False}

    def requirements(self):
        self.requires("eigen/3.4.0", visible=False)  # inside the library, never in its headers

    def validate(self):
        check_min_cppstd(self, 20)
        if self.settings.os == "Windows" and self.settings.compiler not in ("gcc", "clang"):
            raise ConanInvalidConfiguration("on Windows it is compiled by MinGW")

    def export_sources(self):
        source = self.recipe_folder + "/../.."
        for pattern in ("CMakeLists.txt", "LICENSE", "cmake/*", "data/*", "src/*"):
            copy(self, pattern, source, self.export_sources_folder)

    def layout(self):
        self.folders.root = "../.."  # of the recipe, where it is built without a cache
        cmake_layout(self)

    def generate(self):
        toolchain = CMakeToolchain(self)
        shared = bool(self.options.shared)
        for name, value in (("BUILD_TESTS", False), ("BUILD_CLI", False), ("BUILD_SHARED", shared),
                            ("WINDOWS_DLL", shared)):
            toolchain.cache_variables["ORV3CAL_" + name] = value
        # Eigen's folder is told by a component of its package.
        eigen = self.dependencies["eigen"].cpp_info.aggregated_components().includedirs[0]
        toolchain.cache_variables["EIGEN_INCLUDE"] = eigen.replace("\\", "/")
        toolchain.generate()

    def build(self):
        cmake = CMake(self)
        cmake.configure()
        cmake.build()

    def package(self):
        CMake(self).install()
        copy(self, "LICENSE", self.source_folder, self.package_folder + "/licenses")
        lib = self.package_folder + "/lib"
        if self.options.shared:
            rm(self, "liborv3cal.a", lib)
        # A consumer's are written by its own generators.
        for folder in ("cmake", "pkgconfig"):
            rmdir(self, lib + "/" + folder)

    def package_info(self):
        windows = self.settings.os == "Windows"
        dll = windows and self.options.shared
        self.cpp_info.libs = ["Orv3CalDll" if dll else "orv3cal"]
        self.cpp_info.includedirs = ["include/orv3cal"]
        if dll:
            self.cpp_info.defines = ["ORV3CAL_USE_DLL"]
        elif windows:
            self.cpp_info.system_libs = ["comctl32", "comdlg32", "gdi32", "advapi32"]
        elif not self.options.shared:
            self.cpp_info.system_libs = ["m"]
        target = "shared" if self.options.shared and not windows else "orv3cal"
        self.cpp_info.set_property("cmake_target_name", "orv3cal::" + target)
