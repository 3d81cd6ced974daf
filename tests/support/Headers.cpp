// An empty program, whose precompiled headers other targets reuse.
int main() {
  return 0;
}
