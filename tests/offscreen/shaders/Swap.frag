#version 440

// The source with red and blue in each other's place.
layout(location = 0) in vec2 qt_TexCoord0;
layout(location = 0) out vec4 fragColor;

layout(std140, binding = 0) uniform buf
{
    mat4 qt_Matrix;
    float qt_Opacity;
};

layout(binding = 1) uniform sampler2D source;

void main()
{
    fragColor = texture(source, qt_TexCoord0).bgra * qt_Opacity;
}
