// A program of nothing: the headers that are compiled for it are those that all tests share.
int main() {}
