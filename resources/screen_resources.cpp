// Holds the program's icon and the help pages as Qt resources (see CMakeLists.txt).
