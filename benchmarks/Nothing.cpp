// A process that does nothing, as the floor of the others.
int main() {
  return 0;
}
