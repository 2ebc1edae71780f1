// What the start of any program costs.
int main() {}
