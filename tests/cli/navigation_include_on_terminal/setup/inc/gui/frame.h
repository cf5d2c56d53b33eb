class Frame
