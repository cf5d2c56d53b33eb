#pragma once

class EXPORT Stack : public Base {
public:
  void push(int);
};
class Forward;
