// Nothing of its own: the program exists for its precompiled headers.
int main() {
  return 0;
}
