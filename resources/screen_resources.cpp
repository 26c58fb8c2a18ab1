// Holds the pictures of the windows as Qt resources (see CMakeLists.txt).
